#pragma once

#include <optional>
#include <string_view>

#include "zelmat/materials/BlockKind.h"
#include "zelmat/materials/Table.h"

namespace zelmat {

struct WrittenNumber;

/// What a number that was written in another unit is in the stored one, as every reader of cards converts it.
/// Nothing when the unit is none for it.
std::optional<double> StoredNumber(const Setting& setting, const WrittenNumber& written);

/// The same for a column, value by value; `values` are what is stored, where the numbers are the same.
std::optional<std::vector<double>> StoredNumbers(const ColumnKind& column, const WrittenNumbers& written,
                                                 const std::vector<double>& values);

}  // namespace zelmat
