#pragma once

#include "zelmat/materials/Table.h"
#include "zelmat/mechanics/tables/TemperatureTable.h"

namespace zelmat {

/// A table's numbers as the formulas take them: for each row the values of all columns but the temperature,
/// in their order and in the stored units, over the temperature in K. A table that does not depend on
/// temperature has one row. Refused as TemperatureTable::Over refuses, for several rows without temperature,
/// and for numbers that the store does not have.
mechanics::Outcome<mechanics::TemperatureTable> OverTemperature(const Table& table);

}  // namespace zelmat
