#include "zelmat/mechanics/gasket/GasketOverTemperature.h"

#include <algorithm>

namespace zelmat::mechanics {

namespace {

void AddNew(std::vector<std::string>& notes, const std::vector<std::string>& more) {
    for (const std::string& note : more) {
        if (std::find(notes.begin(), notes.end(), note) == notes.end()) notes.push_back(note);
    }
}

}  // namespace

Outcome<GasketValue> ReadAt(const std::vector<GasketAtTemperature>& gaskets, double temperature,
                            OutsidePolicy policy, const GasketReading& reading) {
    std::vector<TemperatureTable::Row> rows;
    std::vector<std::string> notes;
    bool secant = true;  // of all readings or none: they are at one closure
    for (const GasketAtTemperature& gasket : gaskets) {
        auto value = reading(gasket.thickness);
        if (!value.Ok()) return value;
        rows.push_back({gasket.temperature,
                        {value->pressure, value->secantStiffness.value_or(0.0), value->tangentStiffnessBelow,
                         value->tangentStiffness}});
        secant = secant && value->secantStiffness;
        AddNew(notes, value->notes);
    }
    const auto table = TemperatureTable::Over(std::move(rows));
    if (!table.Ok()) return table.Refused();
    const auto at = table->At(temperature, policy);
    if (!at.Ok()) return at.Refused();
    AddNew(notes, at->notes);
    return GasketValue{.pressure = at->values[0],
                       .secantStiffness = secant ? std::optional(at->values[1]) : std::nullopt,
                       .tangentStiffnessBelow = at->values[2],
                       .tangentStiffness = at->values[3],
                       .notes = std::move(notes)};
}

}  // namespace zelmat::mechanics
