#include "zelmat/mechanics/tables/TemperatureTable.h"

#include <algorithm>
#include <cmath>

namespace zelmat::mechanics {

namespace {

using enum TablePosition;

/// The first row at or above a temperature; the number of rows when there is none.
std::size_t UpperRow(const std::vector<TemperatureTable::Row>& rows, double temperature) {
    const auto upper = std::lower_bound(rows.begin(), rows.end(), temperature,
                                        [](const auto& row, double t) { return row.temperature < t; });
    return static_cast<std::size_t>(upper - rows.begin());
}

std::vector<double> Line(const TemperatureTable::Row& row, const std::vector<double>& slope,
                         double temperature) {
    auto values = row.values;
    for (std::size_t i = 0; i < values.size(); ++i) values[i] += slope[i] * (temperature - row.temperature);
    return values;
}

/// Between two rows from both of them, so that a row's own temperature gives its own values to the last bit.
std::vector<double> Between(const TemperatureTable::Row& lower, const TemperatureTable::Row& upper,
                            double temperature) {
    const double part = (temperature - lower.temperature) / (upper.temperature - lower.temperature);
    auto values = lower.values;
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = std::lerp(lower.values[i], upper.values[i], part);
    return values;
}

std::string OutsideNote(TablePosition position, OutsidePolicy policy) {
    const std::string side = position == BELOW ? "below the table: " : "above the table: ";
    if (policy == OutsidePolicy::LINEAR) return side + "extended along its last two rows on that side";
    return side + "value of its " + (position == BELOW ? "first" : "last") + " row";
}

bool AllFinite(const TemperatureTable::Row& row) {
    return std::isfinite(row.temperature) && std::all_of(row.values.begin(), row.values.end(),
                                                         [](double value) { return std::isfinite(value); });
}

}  // namespace

std::string_view Keyword(OutsidePolicy policy) {
    switch (policy) {
        case OutsidePolicy::REFUSE:
            return "error";
        case OutsidePolicy::CONSTANT:
            return "constant";
        case OutsidePolicy::LINEAR:
            return "linear";
    }
    return {};
}

std::optional<OutsidePolicy> OutsidePolicyOf(std::string_view keyword) {
    for (const auto policy : {OutsidePolicy::REFUSE, OutsidePolicy::CONSTANT, OutsidePolicy::LINEAR}) {
        if (Keyword(policy) == keyword) return policy;
    }
    return std::nullopt;
}

Outcome<TemperatureTable> TemperatureTable::Over(std::vector<Row> rows) {
    if (rows.empty()) return Refusal{"a table over temperature needs a row"};
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const std::string name = "row " + std::to_string(i + 1);
        if (!AllFinite(rows[i])) return Refusal{name + " holds a number that is not finite"};
        if (rows[i].values.size() != rows[0].values.size())
            return Refusal{name + " is not as long as the first one"};
        if (i > 0 && rows[i].temperature <= rows[i - 1].temperature) {
            return Refusal{"the temperature of " + name + " is not above that of the row before"};
        }
    }
    return TemperatureTable(std::move(rows), false);
}

TemperatureTable TemperatureTable::Independent(std::vector<double> values) {
    return TemperatureTable({{.temperature = 0.0, .values = std::move(values)}}, true);
}

TablePosition TemperatureTable::PositionOf(double temperature) const {
    if (independent_) return INDEPENDENT;
    if (temperature < rows_.front().temperature) return BELOW;
    if (temperature > rows_.back().temperature) return ABOVE;
    return rows_[UpperRow(rows_, temperature)].temperature == temperature ? ON_ROW : BETWEEN_ROWS;
}

std::vector<double> TemperatureTable::Slope(std::size_t upperRow) const {
    const Row &lower = rows_[upperRow - 1], &upper = rows_[upperRow];
    std::vector<double> slope;
    for (std::size_t i = 0; i < lower.values.size(); ++i) {
        slope.push_back((upper.values[i] - lower.values[i]) / (upper.temperature - lower.temperature));
    }
    return slope;
}

Outcome<TableValue> TemperatureTable::At(double temperature, OutsidePolicy policy) const {
    if (!std::isfinite(temperature)) return Refusal{"a temperature has to be a finite number"};
    const TablePosition position = PositionOf(temperature);
    TableValue value{.values = rows_.front().values, .position = position, .policy = policy, .notes = {}};
    switch (position) {
        case INDEPENDENT:
            value.notes = {"does not depend on temperature"};
            return value;
        case ON_ROW:
            value.values = rows_[UpperRow(rows_, temperature)].values;
            return value;
        case BETWEEN_ROWS: {
            const std::size_t upper = UpperRow(rows_, temperature);
            value.values = Between(rows_[upper - 1], rows_[upper], temperature);
            value.notes = {"interpolated between rows"};
            return value;
        }
        case BELOW:
        case ABOVE:
            break;
    }
    if (policy == OutsidePolicy::REFUSE) return Refusal{"the temperature lies outside the table"};
    const Row& nearest = position == BELOW ? rows_.front() : rows_.back();
    value.values = nearest.values;
    value.notes = {OutsideNote(position, policy)};
    if (policy == OutsidePolicy::CONSTANT) return value;
    if (rows_.size() == 1) return Refusal{"a table of one row cannot be extended linearly"};
    value.values = Line(nearest, Slope(position == BELOW ? 1 : rows_.size() - 1), temperature);
    return value;
}

Outcome<TemperatureTable::Slopes> TemperatureTable::SlopesAt(double temperature, OutsidePolicy policy) const {
    const auto value = At(temperature, policy);
    if (!value.Ok()) return value.Refused();
    const std::vector<double> flat(rows_.front().values.size(), 0.0);
    if (rows_.size() == 1) return Slopes{flat, flat};
    const std::size_t last = rows_.size() - 1;
    const bool extended = policy == OutsidePolicy::LINEAR;
    switch (value->position) {
        case INDEPENDENT:
            return Slopes{flat, flat};
        case BELOW:
            return extended ? Slopes{Slope(1), Slope(1)} : Slopes{flat, flat};
        case ABOVE:
            return extended ? Slopes{Slope(last), Slope(last)} : Slopes{flat, flat};
        case ON_ROW:
        case BETWEEN_ROWS:
            break;
    }
    const std::size_t upper = UpperRow(rows_, temperature);
    if (value->position == BETWEEN_ROWS) return Slopes{Slope(upper), Slope(upper)};
    return Slopes{Slope(std::max<std::size_t>(upper, 1)), Slope(std::min(upper + 1, last))};
}

std::optional<TemperatureRange> TemperatureTable::Range() const {
    if (independent_) return std::nullopt;
    return TemperatureRange{rows_.front().temperature, rows_.back().temperature};
}

}  // namespace zelmat::mechanics
