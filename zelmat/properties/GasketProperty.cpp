#include "zelmat/properties/GasketProperty.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace zelmat {

namespace {

using mechanics::GasketAtTemperature;
using mechanics::GasketThickness;
using mechanics::Outcome;
using mechanics::Refusal;
using mechanics::UnloadingPoint;

struct UnloadingTable {
    const char* name;
    const char* parameter;
};

UnloadingTable TableOf(GasketUnloading unloading) {
    if (unloading == GasketUnloading::DAMAGE) return {"unloading_damage", "max_closure"};
    return {"unloading_elastic_plastic", "plastic_closure"};
}

/// A table without a temperature column has one temperature, 0.
double TemperatureOf(const Table& table, std::size_t row) {
    const Column* temperature = table.Find(TemperatureColumn().name);
    return temperature ? temperature->values[row] : 0.0;
}

double At(const Table& table, const char* column, std::size_t row) {
    const Column* found = table.Find(column);
    return found ? found->values[row] : std::nan("");
}

/// The rows of an unloading table by temperature.
std::map<double, std::vector<UnloadingPoint>> UnloadingPoints(const Block& gasket,
                                                              GasketUnloading unloading) {
    std::map<double, std::vector<UnloadingPoint>> points;
    const UnloadingTable names = TableOf(unloading);
    const Table* table = gasket.Find(names.name);
    if (!table || unloading == GasketUnloading::NONE) return points;
    for (std::size_t row = 0; row < table->Rows(); ++row) {
        points[TemperatureOf(*table, row)].push_back({.pressure = At(*table, "pressure", row),
                                                      .closure = At(*table, "closure", row),
                                                      .parameter = At(*table, names.parameter, row)});
    }
    return points;
}

}  // namespace

std::string_view Keyword(GasketUnloading unloading) {
    switch (unloading) {
        case GasketUnloading::NONE:
            return "none";
        case GasketUnloading::ELASTIC_PLASTIC:
            return "elastic-plastic";
        case GasketUnloading::DAMAGE:
            return "damage";
    }
    return {};
}

std::vector<GasketUnloading> UnloadingsOf(const Block& gasket) {
    std::vector<GasketUnloading> all;
    if (!gasket.values.Get<bool>("unloading").value_or(true)) return all;
    for (const auto unloading : {GasketUnloading::ELASTIC_PLASTIC, GasketUnloading::DAMAGE}) {
        const Table* table = gasket.Find(TableOf(unloading).name);
        if (table && table->Rows() > 0) all.push_back(unloading);
    }
    return all;
}

std::vector<double> UnloadingEnds(const Block& gasket, GasketUnloading unloading) {
    std::vector<double> ends;
    const auto points = UnloadingPoints(gasket, unloading);
    if (points.empty()) return ends;
    const auto& first = points.begin()->second;
    for (std::size_t at = 0; at < first.size(); ++at) {
        const bool last = at + 1 == first.size() || first[at + 1].parameter != first[at].parameter;
        if (last) ends.push_back(first[at].closure);
    }
    return ends;
}

Outcome<std::vector<GasketAtTemperature>> GasketOf(const Block& gasket, GasketUnloading unloading) {
    const Table* loading = gasket.Find("loading");
    if (!loading || loading->Rows() == 0) return Refusal{"the gasket has no loading table"};
    std::map<double, std::vector<mechanics::PressurePoint>> curves;
    for (std::size_t row = 0; row < loading->Rows(); ++row) {
        curves[TemperatureOf(*loading, row)].push_back(
            {.closure = At(*loading, "closure", row), .pressure = At(*loading, "pressure", row)});
    }
    const auto points = UnloadingPoints(gasket, unloading);
    std::vector<GasketAtTemperature> all;
    for (const auto& [temperature, curve] : curves) {
        const auto found = points.find(temperature);
        if (unloading != GasketUnloading::NONE && found == points.end()) {
            return Refusal{"unloading has no curves at one of the temperatures of loading"};
        }
        const auto thickness = GasketThickness::Over(
            curve, found == points.end() ? std::vector<UnloadingPoint>() : found->second);
        if (!thickness.Ok()) return thickness.Refused();
        all.push_back({temperature, *thickness});
    }
    return all;
}

}  // namespace zelmat
