#include "zelmat/materials/Table.h"

#include <algorithm>

namespace zelmat {

std::vector<double> Table::Row(std::size_t row) const {
    std::vector<double> numbers;
    for (const Column& column : columns) numbers.push_back(column.values[row]);
    return numbers;
}

const Column* Table::Find(const std::string& name) const {
    const auto found = std::find_if(columns.begin(), columns.end(),
                                    [&](const Column& column) { return column.kind.name == name; });
    return found == columns.end() ? nullptr : &*found;
}

Table EmptyTable(const TableKind& kind, const Values& values, bool temperatureDependent) {
    Table table{.kind = &kind, .temperatureDependent = temperatureDependent};
    if (const auto form = kind.form(values)) {
        for (ColumnKind& column : form->ColumnsOf(temperatureDependent)) {
            table.columns.push_back({.kind = std::move(column)});
        }
    }
    return table;
}

}  // namespace zelmat
