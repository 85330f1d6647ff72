#pragma once

#include <string>
#include <string_view>

#include "zelmat/materials/BlockKind.h"
#include "zelmat/materials/Table.h"
#include "zelmat/materials/Values.h"
#include "zelmat/quantities/UnitChoice.h"

namespace zelmat {

/// What a column or a setting measures: of the quantities that are stored in its unit the one that its name
/// ends in ("youngs_modulus" is a modulus, "plastic_strain" a strain), else the usual one ("Pa" is a stress).
/// Null for what has no unit.
const Quantity* QuantityOf(std::string_view name, std::string_view unit);

/// A table for showing: the same numbers in the chosen units, which its columns name. It is none to store:
/// its numbers are no longer SI. A column with a number that its unit cannot hold stays as it is.
Table InUnits(const Table& table, const UnitChoice& units);

/// A single value for showing, in the unit beside it.
struct ShownValue {
    Value value;
    std::string unit;
};
ShownValue InUnits(const Setting& setting, const Value& value, const UnitChoice& units);

}  // namespace zelmat
