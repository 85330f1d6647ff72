#pragma once

#include <string>
#include <string_view>

namespace zelmat {

/// The house's one name of a property that the field spells in many ways: "youngs_modulus" for "E",
/// "YoungModulus", "YOUNG_MODULUS" and "Young's modulus". Short symbols count as written, long names without
/// regard to capitals, blanks, "_", "-" and "'". What is no such name comes back as it is.
std::string PropertyName(std::string_view name);

/// The block that is meant: "elastic" for "Linear Elastic", "conductivity" for "ThermalConductivity". What is
/// no such name comes back as it is.
std::string BlockName(std::string_view name);

/// A regular expression, without anchors, of every spelling that means this name, itself included.
std::string SpellingsPattern(const std::string& name);

/// A header as tables have it, taken apart: "YoungsModulus [GPa]".
struct ColumnHeader {
    std::string name;      ///< "YoungsModulus"
    std::string unit;      ///< "GPa"
    bool hasUnit = false;  ///< there are brackets
};

ColumnHeader ReadColumnHeader(std::string_view text);

}  // namespace zelmat
