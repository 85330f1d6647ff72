#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "zelmat/materials/Material.h"

/// A rule of materials with two cards: one that breaks it, and one, as like as can be, that does not.
struct RuleSeed {
    const char* code;
    const char* kind;  ///< "error", "warning"
    std::string broken;
    std::string kept;
    void (*spoil)(zelmat::Material& material) = nullptr;  ///< for a fault that no card can have
};

const std::vector<RuleSeed>& RuleSeeds();

inline std::ostream& operator<<(std::ostream& out, const RuleSeed& seed) {
    return out << seed.code;
}
