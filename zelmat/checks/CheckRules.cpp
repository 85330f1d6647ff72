#include "zelmat/checks/CheckRules.h"

namespace zelmat {

const std::vector<CheckTopic>& CheckRules() {
    static const std::vector<CheckTopic> topics = {
        ValueRules(),        TemperatureRules(),  HardeningRules(), HyperelasticRules(), GasketRules(),
        CompletenessRules(), PlausibilityRules(), AgreementRules(), OrthotropicRules(),  LayupRules()};
    return topics;
}

const CheckRule* FindCheckRule(const std::string& code) {
    for (const CheckTopic& topic : CheckRules()) {
        for (const CheckRule& rule : topic.rules) {
            if (rule.code == code) return &rule;
        }
    }
    return nullptr;
}

}  // namespace zelmat
