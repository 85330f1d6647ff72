#pragma once

#include <functional>
#include <string>
#include <vector>

#include "zelmat/findings/Findings.h"
#include "zelmat/layups/LayupCard.h"
#include "zelmat/materials/Material.h"

namespace zelmat {

class CheckReport;

/// One rule that the data of a material or a layup are held against. An error is what cannot be, a warning
/// what is hardly meant. Not a rule of form: a card that breaks one of those is not read at all.
struct CheckRule {
    FindingKind kind = FindingKind::ERROR;
    std::string code;    ///< of its findings: "youngs-modulus"; one rule has it, and no other
    std::string says;    ///< the rule, as a sentence
    std::string bound;   ///< what a finding adds: "has to be above 0"
    std::string source;  ///< where the bound comes from

    /// Reports whatever breaks the rule. One of the two is there.
    std::function<void(const Material& material, CheckReport& report)> look = nullptr;
    std::function<void(const LayupCard& layup, CheckReport& report)> lookAtLayup = nullptr;
};

/// Rules of one topic, in the order of the table.
struct CheckTopic {
    std::string title;
    std::vector<CheckRule> rules;
};

/// Where a rule puts what breaks it: findings of the rule's kind and code, with its bound.
class CheckReport {
public:
    CheckReport(const CheckRule& rule, const std::string& file, Findings& findings)
        : rule_(rule), file_(file), findings_(findings) {}

    /// `line` from 1; 0 for the file as a whole. What is in `details` follows the bound.
    void Add(int line, std::string text, std::vector<std::string> details = {});

    /// A value of a table's row: "row 2 of plastic: plastic strain is 0.002".
    void AddValue(const Block& block, const Table& table, const Column& column, std::size_t row,
                  std::vector<std::string> details = {});

private:
    const CheckRule& rule_;
    const std::string& file_;
    Findings& findings_;
};

}  // namespace zelmat
