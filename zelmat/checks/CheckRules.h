#pragma once

#include <vector>

#include "zelmat/checks/CheckRule.h"

namespace zelmat {

/// The table of all rules: what checks, prints the rules and describes them is made from it. A new rule is
/// one row in the function of its topic.
const std::vector<CheckTopic>& CheckRules();

/// Null when there is no rule of that code.
const CheckRule* FindCheckRule(const std::string& code);

/// The topics, one file each.
CheckTopic ValueRules();
CheckTopic TemperatureRules();
CheckTopic HardeningRules();
CheckTopic HyperelasticRules();
CheckTopic GasketRules();
CheckTopic CompletenessRules();
CheckTopic PlausibilityRules();
CheckTopic AgreementRules();
CheckTopic OrthotropicRules();
CheckTopic LayupRules();

}  // namespace zelmat
