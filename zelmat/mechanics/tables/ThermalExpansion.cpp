#include "zelmat/mechanics/tables/ThermalExpansion.h"

#include <algorithm>

namespace zelmat::mechanics {

namespace {

/// A table with new values at the same temperatures; a table without temperatures gets one value.
template <class Value>
Outcome<TemperatureTable> Mapped(const TemperatureTable& table, double single, Value value) {
    const bool depends = table.Range().has_value();
    std::vector<TemperatureTable::Row> rows;
    for (const auto& row : table.Rows()) {
        const double temperature = depends ? row.temperature : single;
        const Outcome<double> mapped = value(temperature);
        if (!mapped.Ok()) return mapped.Refused();
        rows.push_back({temperature, {*mapped}});
    }
    if (!depends) return TemperatureTable::Independent(rows.front().values);
    return TemperatureTable::Over(std::move(rows));
}

/// The integral of a table from one temperature to another, exact for what is linear between rows.
Outcome<double> Integral(const TemperatureTable& table, double from, double to, OutsidePolicy policy) {
    std::vector<double> corners = {from, to};
    for (const auto& row : table.Rows()) {
        if (row.temperature > std::min(from, to) && row.temperature < std::max(from, to)) {
            corners.push_back(row.temperature);
        }
    }
    std::sort(corners.begin(), corners.end());
    double sum = 0.0;
    for (std::size_t i = 1; i < corners.size(); ++i) {
        const auto lower = table.At(corners[i - 1], policy), upper = table.At(corners[i], policy);
        if (!lower.Ok()) return lower.Refused();
        if (!upper.Ok()) return upper.Refused();
        sum += 0.5 * (lower->values[0] + upper->values[0]) * (corners[i] - corners[i - 1]);
    }
    return from <= to ? sum : -sum;
}

}  // namespace

Outcome<TableValue> ThermalExpansion::MeanAt(double temperature, OutsidePolicy policy) const {
    if (!instantaneous_) return mean_.At(temperature, policy);
    auto mean = instantaneous_->At(temperature, policy);  // at the reference temperature both are the same
    if (!mean.Ok() || temperature == reference_) return mean;
    const auto strain = Integral(*instantaneous_, reference_, temperature, policy);
    if (!strain.Ok()) return strain.Refused();
    TableValue value = *mean;
    value.values[0] = *strain / (temperature - reference_);
    return value;
}

Outcome<TableValue> ThermalExpansion::StrainAt(double temperature, OutsidePolicy policy) const {
    if (temperature == reference_) {
        return TableValue{.values = {0.0}, .position = TablePosition::ON_ROW, .policy = policy, .notes = {}};
    }
    const auto mean = MeanAt(temperature, policy);
    if (!mean.Ok()) return mean.Refused();
    TableValue strain = *mean;
    strain.values[0] *= temperature - reference_;
    return strain;
}

Outcome<ExpansionValue> ThermalExpansion::InstantaneousAt(double temperature, OutsidePolicy policy) const {
    const auto row = (instantaneous_ ? *instantaneous_ : mean_).At(temperature, policy);
    if (!row.Ok()) return row.Refused();
    if (instantaneous_) return ExpansionValue{.value = row->values[0], .below = {}, .notes = row->notes};
    const auto slopes = mean_.SlopesAt(temperature, policy);
    if (!slopes.Ok()) return slopes.Refused();
    const double distance = temperature - reference_;
    const double above = row->values[0] + slopes->above[0] * distance;
    const double below = row->values[0] + slopes->below[0] * distance;
    ExpansionValue value{.value = above, .below = {}, .notes = row->notes};
    if (above != below) {
        value.below = below;
        value.notes.push_back("on a row, where the slope of the table jumps: the value above it");
    }
    return value;
}

Outcome<ExpansionValue> ThermalExpansion::MeanFrom(double newReference, double temperature,
                                                   ReferenceChange change, OutsidePolicy policy) const {
    const auto start = StrainAt(newReference, policy);
    if (!start.Ok()) return start.Refused();
    const double length = change == ReferenceChange::EXACT ? 1.0 + start->values[0] : 1.0;
    const std::string named = change == ReferenceChange::EXACT ? "exact" : "linearised";
    if (temperature == newReference) {
        auto limit = InstantaneousAt(temperature, policy);
        if (!limit.Ok()) return limit;
        ExpansionValue value = *limit;
        value.value /= length;
        if (value.below) *value.below /= length;
        value.notes.push_back(named + ", the limit at the reference temperature");
        return value;
    }
    const auto end = StrainAt(temperature, policy);
    if (!end.Ok()) return end.Refused();
    ExpansionValue value{
        .value = (end->values[0] - start->values[0]) / (length * (temperature - newReference)),
        .below = {},
        .notes = end->notes};
    value.notes.push_back(named);
    return value;
}

Outcome<ThermalExpansion> ThermalExpansion::Referred(double newReference, ReferenceChange change,
                                                     OutsidePolicy policy) const {
    const auto mean = Mapped(mean_, newReference, [&](double temperature) -> Outcome<double> {
        const auto value = MeanFrom(newReference, temperature, change, policy);
        if (!value.Ok()) return value.Refused();
        return value->value;
    });
    if (!mean.Ok()) return mean.Refused();
    return ThermalExpansion(*mean, newReference);
}

Outcome<ThermalExpansion> ThermalExpansion::FromInstantaneous(const TemperatureTable& instantaneous,
                                                              double referenceTemperature,
                                                              OutsidePolicy policy) {
    ThermalExpansion expansion(instantaneous, referenceTemperature);
    expansion.instantaneous_ = instantaneous;
    const auto mean = Mapped(instantaneous, referenceTemperature, [&](double temperature) -> Outcome<double> {
        const auto value = expansion.MeanAt(temperature, policy);
        if (!value.Ok()) return value.Refused();
        return value->values[0];
    });
    if (!mean.Ok()) return mean.Refused();
    expansion.mean_ = *mean;
    return expansion;
}

}  // namespace zelmat::mechanics
