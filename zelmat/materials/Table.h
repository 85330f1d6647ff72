#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/materials/Origin.h"
#include "zelmat/materials/TableKind.h"

namespace zelmat {

/// A column's numbers as somebody wrote them, where that was not in the stored unit in its own spelling.
struct WrittenNumbers {
    std::string unit;             ///< in its spelling: "GPa"
    std::vector<double> numbers;  ///< empty: the same numbers as are stored
};

/// The numbers of one column, from the first row to the last. Never absent: a row of the store that is
/// shorter than the others has NaN there.
struct Column {
    ColumnKind kind;
    std::vector<double> values = {};  ///< in the kind's unit
    std::optional<WrittenNumbers> written = std::nullopt;
};

/// One table of a material, column by column. All columns are equally long.
struct Table {
    const TableKind* kind = nullptr;
    bool temperatureDependent = false;
    std::vector<Column> columns = {};  ///< in the order of the form; those beyond it have no name
    std::string source = {};           ///< where the numbers were published; may be empty
    Origin origin = {};

    std::size_t Rows() const { return columns.empty() ? 0 : columns.front().values.size(); }
    std::vector<double> Row(std::size_t row) const;     ///< a copy; for those who look at few
    const Column* Find(const std::string& name) const;  ///< null when there is no such column
};

/// A table without rows, with the columns that its form has for a block of these values; without columns when
/// the values do not tell the form.
Table EmptyTable(const TableKind& kind, const Values& values, bool temperatureDependent);

}  // namespace zelmat
