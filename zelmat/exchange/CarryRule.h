#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "zelmat/materials/Material.h"

namespace zelmat {

/// What becomes of a behavior in a form of deck.
enum class Carry : int {
    CARRIED,    ///< the solver has it, with the same numbers
    CONVERTED,  ///< the solver gets something that stands in for it
    LOST,       ///< the solver has nothing like it, or this program does not write it
};

/// "carried", "converted", "lost"
std::string_view Keyword(Carry carry);

/// One line of a form's table of behaviors.
struct CarryRule {
    std::string behavior;  ///< one of BehaviorNames()
    Carry carry = Carry::LOST;
    std::string as;      ///< how the solver calls it: "*ELASTIC"; empty where it is lost
    std::string remark;  ///< what changes, or why it is lost; may be empty where it is carried
};

/// Elastic constants with directions (E1, E2, nu12, G12, ...), which a material keeps beside its behaviors.
inline constexpr const char* kPlyConstants = "ply constants";

/// Every behavior that a deck may be asked to carry: the blocks of a material, told apart where solvers do
/// ("plastic johnson-cook", "hyperelastic OGDEN", "user_material THERMAL"), "ply constants" and "layup".
const std::vector<std::string>& BehaviorNames();

/// The behavior that a block is.
std::string BehaviorOf(const Block& block);

/// The line about a behavior; null when the table has none, which no form's table may do.
const CarryRule* FindRule(const std::vector<CarryRule>& rules, const std::string& behavior);

/// A form's whole table, in the order of BehaviorNames(): what it says, and that everything else is lost, by
/// one remark.
std::vector<CarryRule> WithTheRestLost(const std::vector<CarryRule>& rules, const std::string& remark);

}  // namespace zelmat
