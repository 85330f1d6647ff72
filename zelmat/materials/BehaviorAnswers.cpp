#include "zelmat/materials/BehaviorAnswers.h"

#include <algorithm>
#include <limits>

namespace zelmat {

ZELCftArrayZELCftArrayDouble ToPropertyTable(const Table& table) {
    ZELCftArrayZELCftArrayDouble rows(0, nullptr);
    const int width = static_cast<int>(table.columns.size());
    rows.Resize(static_cast<int>(table.Rows()));
    for (int row = 0; row < rows.size(); ++row) {
        ZELCftArraydouble& numbers = rows[row];
        numbers.Prepare(width);
        for (const Column& column : table.columns) {
            numbers.push_back(column.values[static_cast<std::size_t>(row)]);
        }
    }
    return rows;
}

void AddTable(Block& block, const TableKind& kind, bool temperatureDependent,
              const ZELCftArrayZELCftArrayDouble& rows) {
    Table& table = block.tables.emplace_back(EmptyTable(kind, block.values, temperatureDependent));
    const int count = rows.size();
    int width = 0;
    for (int row = 0; row < count; ++row) width = std::max(width, rows[row].size());
    while (table.columns.size() < static_cast<std::size_t>(width)) table.columns.emplace_back();
    for (std::size_t at = 0; at < table.columns.size(); ++at) {
        auto& values = table.columns[at].values;
        values.resize(static_cast<std::size_t>(count), std::numeric_limits<double>::quiet_NaN());
        const int column = static_cast<int>(at);
        for (int row = 0; row < count; ++row) {
            const ZELCftArraydouble& numbers = rows[row];
            if (column < numbers.size()) values[static_cast<std::size_t>(row)] = numbers[column];
        }
    }
}

void BehaviorAnswers::ToValue(HRESULT status) {
    const bool told = std::any_of(all_.begin(), all_.end(),
                                  [](const WriteStatus& answer) { return answer.table == nullptr; });
    if (FAILED(status) && !told) all_.push_back({nullptr, status});
}

void BehaviorAnswers::ToTable(const Table& table, HRESULT status) {
    if (status != S_OK) all_.push_back({&table, status});
}

}  // namespace zelmat
