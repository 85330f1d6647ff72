#include "zelmat/materials/BehaviorAnswers.h"

#include <algorithm>

namespace zelmat {

ZELCftArrayZELCftArrayDouble ToPropertyTable(const std::vector<std::vector<double>>& rows) {
    ZELCftArrayZELCftArrayDouble table(0, nullptr);
    table.Prepare(static_cast<int>(rows.size()));
    for (const auto& values : rows) {
        ZELCftArraydouble row(0, nullptr);
        for (const double value : values) row.push_back(value);
        table.push_back(row);
    }
    return table;
}

std::vector<std::vector<double>> FromPropertyTable(ZELCftArrayZELCftArrayDouble& table) {
    std::vector<std::vector<double>> rows;
    for (int i = 0; i < table.size(); ++i) {
        ZELCftArraydouble& row = table[i];
        std::vector<double>& values = rows.emplace_back();
        for (int column = 0; column < row.size(); ++column) values.push_back(row[column]);
    }
    return rows;
}

void BehaviorAnswers::ToValue(HRESULT status) {
    const bool told = std::any_of(all_.begin(), all_.end(),
                                  [](const WriteStatus& answer) { return answer.table == nullptr; });
    if (FAILED(status) && !told) all_.push_back({nullptr, status});
}

void BehaviorAnswers::ToTable(const CardTable& table, HRESULT status) {
    if (status != S_OK) all_.push_back({&table, status});
}

}  // namespace zelmat
