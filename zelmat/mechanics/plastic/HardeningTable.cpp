#include "zelmat/mechanics/plastic/HardeningTable.h"

#include <algorithm>
#include <cmath>

namespace zelmat::mechanics {

Outcome<HardeningTable> HardeningTable::Over(std::vector<HardeningPoint> rows) {
    if (rows.empty()) return Refusal{"a hardening table needs a row"};
    std::vector<Curve> curves;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const std::string name = "row " + std::to_string(i + 1);
        const HardeningPoint& row = rows[i];
        if (!std::isfinite(row.stress) || !std::isfinite(row.plasticStrain) ||
            !std::isfinite(row.temperature)) {
            return Refusal{name + " holds a number that is not finite"};
        }
        if (i > 0 && row.temperature < rows[i - 1].temperature)
            return Refusal{name + ": the temperature falls"};
        if (i == 0 || row.temperature > rows[i - 1].temperature) {
            if (row.plasticStrain != 0.0) return Refusal{name + ": a curve has to start at plastic strain 0"};
            curves.push_back({.begin = i, .end = i});
        } else if (row.plasticStrain <= rows[i - 1].plasticStrain) {
            return Refusal{name + ": the plastic strain does not rise"};
        }
        curves.back().end = i + 1;
    }
    return HardeningTable(std::move(rows), std::move(curves));
}

HardeningTable::Between HardeningTable::CurvesAt(double temperature) const {
    const auto upper =
        std::lower_bound(curves_.begin(), curves_.end(), temperature,
                         [this](const Curve& curve, double t) { return TemperatureOf(curve) < t; });
    if (upper == curves_.end()) return {curves_.back(), curves_.back()};
    const bool between = upper != curves_.begin() && TemperatureOf(*upper) != temperature;
    return {between ? *(upper - 1) : *upper, *upper};
}

double HardeningTable::GreatestPlasticStrain(double temperature) const {
    const auto [below, above] = CurvesAt(temperature);
    return std::min(rows_[below.end - 1].plasticStrain, rows_[above.end - 1].plasticStrain);
}

double HardeningTable::StressOn(const Curve& curve, double plasticStrain) const {
    const auto begin = rows_.begin() + static_cast<std::ptrdiff_t>(curve.begin);
    const auto end = rows_.begin() + static_cast<std::ptrdiff_t>(curve.end);
    const auto upper =
        std::lower_bound(begin, end, plasticStrain,
                         [](const HardeningPoint& row, double strain) { return row.plasticStrain < strain; });
    if (upper == end) return rows_[curve.end - 1].stress;
    if (upper == begin) return upper->stress;
    const auto lower = upper - 1;
    const double part =
        (plasticStrain - lower->plasticStrain) / (upper->plasticStrain - lower->plasticStrain);
    return std::lerp(lower->stress, upper->stress, part);
}

Outcome<HardeningValue> HardeningTable::At(double plasticStrain, double temperature) const {
    if (!std::isfinite(plasticStrain) || plasticStrain < 0.0) {
        return Refusal{"a plastic strain has to be a finite number from 0 on"};
    }
    if (!std::isfinite(temperature)) return Refusal{"a temperature has to be a finite number"};
    const auto [below, above] = CurvesAt(temperature);
    const bool between = TemperatureOf(below) != TemperatureOf(above);

    HardeningValue value{
        .stress = StressOn(above, plasticStrain),
        .outsideStrain = plasticStrain > GreatestPlasticStrain(temperature),
        .outsideTemperature = temperature < Temperatures().lowest || temperature > Temperatures().highest,
        .notes = {}};
    if (between) {
        const double part =
            (temperature - TemperatureOf(below)) / (TemperatureOf(above) - TemperatureOf(below));
        value.stress = std::lerp(StressOn(below, plasticStrain), value.stress, part);
        value.notes.push_back("interpolated between the curves of two temperatures");
    }
    if (value.outsideStrain)
        value.notes.push_back("beyond the last plastic strain: stress of the last point");
    if (value.outsideTemperature) value.notes.push_back("outside the temperatures: curve of the nearest one");
    return value;
}

}  // namespace zelmat::mechanics
