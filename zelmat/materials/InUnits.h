#pragma once

#include <string>

#include "zelmat/materials/BlockKind.h"
#include "zelmat/materials/Table.h"
#include "zelmat/materials/Values.h"
#include "zelmat/quantities/UnitChoice.h"

namespace zelmat {

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
