#include "zelmat/BehaviorAccess.h"

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

}  // namespace zelmat
