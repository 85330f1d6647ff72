#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "zelmat/materials/Material.h"

namespace zelmat {

/// A material in the JSON form of a card, with the numbers and units as they were written. Every column says
/// its unit. JsonCardReader reads the same material from it, bit for bit.
nlohmann::ordered_json CardJson(const Material& material);

/// The text of a card; of several materials as a list.
std::string JsonCardText(const std::vector<Material>& materials);

/// A column's header in every form: "youngs_modulus [GPa]"; without brackets for a pure number.
std::string HeaderText(const Column& column);

/// A column's numbers as they were written.
const std::vector<double>& WrittenValues(const Column& column);

/// Whether a card may leave the column out, because it holds what stands in for it.
bool IsLeftOut(const Column& column);

/// A block's single value as it was written: a flag, a number in the stored unit, a text, "20 degC".
nlohmann::ordered_json WrittenValue(const Block& block, const Setting& setting);

}  // namespace zelmat
