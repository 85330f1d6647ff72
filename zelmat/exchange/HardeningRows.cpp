#include "zelmat/exchange/HardeningRows.h"

#include <algorithm>
#include <cmath>
#include <set>

#include "zelmat/properties/HardeningProperty.h"
#include "zelmat/quantities/NumberText.h"

namespace zelmat {

namespace {

using mechanics::HardeningPoint;
using mechanics::HardeningTable;
using mechanics::JohnsonCook;
using mechanics::Outcome;

constexpr double kGreatestStrain = 1.0;
constexpr int kStrains = 60;
constexpr int kTemperatures = 12;
constexpr std::size_t kMostRows = 100'000;
constexpr double kNearlyMolten = 0.99;  // of the way to melting, where a solver would divide by a stress of 0

/// A power below 1 bends most at 0: the strains lie four times as close there as the common ones do.
std::vector<double> Strains() {
    auto strains = mechanics::TabulationStrains(kGreatestStrain, kStrains);
    for (double& strain : strains) strain = RoundedTo(strain * strain, 7);
    return strains;
}

std::vector<double> Temperatures(const JohnsonCook& law) {
    std::vector<double> temperatures;
    const double range = (law.meltingTemperature - law.transitionTemperature) * kNearlyMolten;
    for (int i = 0; i < kTemperatures; ++i) {
        temperatures.push_back(law.transitionTemperature + range * i / (kTemperatures - 1));
    }
    return temperatures;
}

double ErrorAt(const JohnsonCook& law, const HardeningTable& curves, double strain, double temperature) {
    const auto exact = mechanics::FlowStressOf(law, strain, temperature);
    const auto table = curves.At(strain, temperature);
    if (!exact.Ok() || !table.Ok() || exact->stress <= 0.0) return 0.0;
    return std::fabs(table->stress / exact->stress - 1.0);
}

std::optional<HardeningRows> InDeckUnits(const HardeningTable& curves, bool overTemperature,
                                         const DeckUnits& units) {
    HardeningRows rows;
    for (const HardeningPoint& point : curves.Rows()) {
        const auto stress = units.FromStored(point.stress, "stress");
        const auto temperature = units.FromStored(point.temperature, "temperature");
        if (!stress || !temperature) return std::nullopt;
        rows.stress.push_back(*stress);
        rows.plasticStrain.push_back(point.plasticStrain);
        if (overTemperature) rows.temperatures.push_back(*temperature);
    }
    return rows;
}

std::optional<HardeningRows> TabulatedRows(const JohnsonCook& law, const DeckUnits& units, DeckNotes& notes) {
    const auto curves = JohnsonCookCurves(law);
    if (!curves.Ok()) {
        notes.LostBehavior("plastic johnson-cook", curves.Why());
        return std::nullopt;
    }
    const double percent = 100.0 * TabulationError(law, *curves);
    notes.Changed("plastic johnson-cook: curves at " + std::to_string(kTemperatures) +
                  " temperatures to plastic strain 1, between whose points the stress is up to " +
                  NumberText(RoundedTo(percent, 2)) + " % off the law; constant beyond them");
    if (law.rate)
        notes.Lost("plastic johnson-cook: the strain-rate factor; the curves hold at the reference rate");
    return InDeckUnits(*curves, true, units);
}

}  // namespace

Outcome<HardeningTable> JohnsonCookCurves(const JohnsonCook& law) {
    const auto exact = mechanics::Tabulated(law, Temperatures(law), Strains());
    if (!exact.Ok()) return exact.Refused();
    std::vector<HardeningPoint> points = exact->Rows();
    for (HardeningPoint& point : points) point.stress = RoundedTo(point.stress, 7);
    return HardeningTable::Over(std::move(points));
}

double TabulationError(const JohnsonCook& law, const HardeningTable& curves) {
    const auto strains = Strains(), temperatures = Temperatures(law);
    double greatest = 0.0;
    for (std::size_t t = 0; t < temperatures.size(); ++t) {
        for (std::size_t s = 0; s < strains.size(); ++s) {
            if (s + 1 < strains.size()) {
                const double middle = (strains[s] + strains[s + 1]) / 2.0;
                greatest = std::max(greatest, ErrorAt(law, curves, middle, temperatures[t]));
            }
            if (t + 1 < temperatures.size()) {
                const double middle = (temperatures[t] + temperatures[t + 1]) / 2.0;
                greatest = std::max(greatest, ErrorAt(law, curves, strains[s], middle));
            }
        }
    }
    return greatest;
}

std::optional<HardeningRows> HardeningRowsOf(const Block& plastic, const DeckUnits& units, DeckNotes& notes) {
    const auto property = HardeningOf(plastic);
    if (!property.Ok()) {
        notes.LostBehavior(BehaviorOf(plastic), property.Why());
        return std::nullopt;
    }
    if (const auto* law = std::get_if<JohnsonCook>(&property->law)) return TabulatedRows(*law, units, notes);
    std::string why;
    auto table = DeckTableOf(plastic, units, why);
    if (!table) {
        notes.LostBehavior(BehaviorOf(plastic), why);
        return std::nullopt;
    }
    return HardeningRows{std::move(table->columns[0]), std::move(table->columns[1]),
                         std::move(table->temperatures)};
}

bool ToCommonStrains(HardeningRows& rows) {
    if (rows.temperatures.empty()) return true;
    std::vector<HardeningPoint> points;
    for (std::size_t row = 0; row < rows.stress.size(); ++row) {
        points.push_back({rows.stress[row], rows.plasticStrain[row], rows.temperatures[row]});
    }
    const auto table = HardeningTable::Over(points);
    if (!table.Ok()) return true;  // no curves to interpolate in
    std::set<double> strains(rows.plasticStrain.begin(), rows.plasticStrain.end());
    std::set<double> temperatures(rows.temperatures.begin(), rows.temperatures.end());
    if (strains.size() * temperatures.size() > kMostRows) return false;
    HardeningRows common;
    for (const double temperature : temperatures) {
        for (const double strain : strains) {
            const auto value = table->At(strain, temperature);
            if (!value.Ok()) return true;
            common.stress.push_back(value->stress);
            common.plasticStrain.push_back(strain);
            common.temperatures.push_back(temperature);
        }
    }
    rows = std::move(common);
    return true;
}

}  // namespace zelmat
