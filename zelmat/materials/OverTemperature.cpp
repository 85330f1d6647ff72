#include "zelmat/materials/OverTemperature.h"

#include <algorithm>
#include <cmath>

namespace zelmat {

namespace {

std::vector<double> ValuesOf(const Table& table, std::size_t row) {
    std::vector<double> values;
    for (const Column& column : table.columns) {
        if (column.kind.name != TemperatureColumn().name) values.push_back(column.values[row]);
    }
    return values;
}

}  // namespace

mechanics::Outcome<mechanics::TemperatureTable> OverTemperature(const Table& table) {
    using mechanics::Refusal;
    if (table.Rows() == 0) return Refusal{"the table has no rows"};
    const Column* temperature = table.Find(TemperatureColumn().name);
    if (table.temperatureDependent && temperature) {
        std::vector<mechanics::TemperatureTable::Row> rows;
        for (std::size_t row = 0; row < table.Rows(); ++row) {
            rows.push_back({temperature->values[row], ValuesOf(table, row)});
        }
        return mechanics::TemperatureTable::Over(std::move(rows));
    }
    if (table.Rows() > 1) return Refusal{"the table has several rows and does not depend on temperature"};
    std::vector<double> values = ValuesOf(table, 0);
    const bool whole = std::all_of(values.begin(), values.end(), [](double v) { return std::isfinite(v); });
    if (!whole) return Refusal{"row 1 holds a number that is not finite"};
    return mechanics::TemperatureTable::Independent(std::move(values));
}

}  // namespace zelmat
