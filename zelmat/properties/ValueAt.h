#pragma once

#include <optional>

#include "zelmat/mechanics/tables/TemperatureTable.h"

namespace zelmat {

/// A table's values at a temperature in K that may not have been said: then it has to be a table that does
/// not depend on temperature. Refused else, and as TemperatureTable::At refuses.
mechanics::Outcome<mechanics::TableValue> ValueAt(const mechanics::TemperatureTable& table,
                                                  std::optional<double> temperature,
                                                  mechanics::OutsidePolicy policy);

}  // namespace zelmat
