#include "zelmat/exchange/CarryRule.h"

#include <algorithm>

#include "zelmat/materials/HyperelasticForms.h"

namespace zelmat {

namespace {

/// The setting by whose value solvers tell a block's behaviors apart; null for most blocks.
const char* TellingSetting(const std::string& block) {
    if (block == "plastic") return "hardening";
    if (block == "hyperelastic") return "model";
    if (block == "user_material") return "type";
    return nullptr;
}

std::vector<std::string> MakeNames() {
    std::vector<std::string> names;
    for (const BlockKind& kind : BlockKinds()) {
        if (kind.use != BlockUse::BEHAVIOR) continue;
        const char* telling = TellingSetting(kind.name);
        if (!telling) names.push_back(kind.name);
        for (const Setting& setting : kind.settings) {
            if (!telling || setting.name != telling) continue;
            for (const std::string& choice : setting.choices) names.push_back(kind.name + " " + choice);
        }
    }
    names.emplace_back(kPlyConstants);
    names.emplace_back("layup");
    return names;
}

}  // namespace

std::string_view Keyword(Carry carry) {
    switch (carry) {
        case Carry::CARRIED:
            return "carried";
        case Carry::CONVERTED:
            return "converted";
        case Carry::LOST:
            return "lost";
    }
    return "";
}

const std::vector<std::string>& BehaviorNames() {
    static const std::vector<std::string> names = MakeNames();
    return names;
}

std::string BehaviorOf(const Block& block) {
    const char* telling = TellingSetting(block.kind->name);
    if (!telling) return block.kind->name;
    return block.kind->name + " " + block.values.Get<std::string>(telling).value_or("");
}

const CarryRule* FindRule(const std::vector<CarryRule>& rules, const std::string& behavior) {
    const auto found = std::find_if(rules.begin(), rules.end(),
                                    [&](const CarryRule& rule) { return rule.behavior == behavior; });
    return found == rules.end() ? nullptr : &*found;
}

std::vector<CarryRule> WithTheRestLost(const std::vector<CarryRule>& rules, const std::string& remark) {
    std::vector<CarryRule> all;
    for (const std::string& behavior : BehaviorNames()) {
        const CarryRule* rule = FindRule(rules, behavior);
        all.push_back(rule ? *rule : CarryRule{behavior, Carry::LOST, "", remark});
    }
    return all;
}

}  // namespace zelmat
