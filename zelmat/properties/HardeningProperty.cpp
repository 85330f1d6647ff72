#include "zelmat/properties/HardeningProperty.h"

#include <array>
#include <cmath>

#include "zelmat/properties/OtherNumbers.h"

namespace zelmat {

namespace {

using mechanics::FlowStress;
using mechanics::HardeningTable;
using mechanics::JohnsonCook;
using mechanics::Outcome;
using mechanics::OutsidePolicy;
using mechanics::Refusal;

std::optional<mechanics::JohnsonCookRate> RateOf(const Block& plastic) {
    const auto c = OtherNumber(plastic.kept, {"C", "strain_rate_coefficient"}, "number");
    const auto rate = OtherNumber(plastic.kept, {"reference_strain_rate", "reference_rate"}, "rate");
    if (!c || !rate) return std::nullopt;
    return mechanics::JohnsonCookRate{.c = *c, .referenceRate = *rate};
}

Outcome<JohnsonCook> LawOf(const Block& plastic, const Table& table) {
    constexpr std::array<const char*, 6> kNames = {
        "A", "B", "n", "m", "melting_temperature", "transition_temperature"};
    std::array<double, 6> values{};
    for (std::size_t at = 0; at < kNames.size(); ++at) {
        const Column* column = table.Find(kNames[at]);
        if (!column || column->values.empty() || !std::isfinite(column->values.front())) {
            return Refusal{std::string("the table has no number for ") + kNames[at]};
        }
        values[at] = column->values.front();
    }
    return JohnsonCook{.a = values[0],
                       .b = values[1],
                       .n = values[2],
                       .m = values[3],
                       .meltingTemperature = values[4],
                       .transitionTemperature = values[5],
                       .rate = RateOf(plastic)};
}

Outcome<HardeningTable> CurvesOf(const Table& table) {
    const Column* stress = table.Find("yield_stress");
    const Column* strain = table.Find("plastic_strain");
    const Column* temperature = table.Find(TemperatureColumn().name);
    if (!stress || !strain) return Refusal{"the table has no column yield_stress or plastic_strain"};
    std::vector<mechanics::HardeningPoint> points;
    for (std::size_t row = 0; row < table.Rows(); ++row) {
        points.push_back({.stress = stress->values[row],
                          .plasticStrain = strain->values[row],
                          .temperature = temperature ? temperature->values[row] : 0.0});
    }
    return HardeningTable::Over(std::move(points));
}

Outcome<FlowStress> StressOf(const HardeningTable& table, double plasticStrain, double temperature,
                             OutsidePolicy policy) {
    if (policy == OutsidePolicy::LINEAR) {
        return Refusal{"a hardening table is not extended linearly: error or constant would do"};
    }
    const auto value = table.At(plasticStrain, temperature);
    if (!value.Ok()) return value.Refused();
    if (policy == OutsidePolicy::REFUSE && value->outsideStrain) {
        return Refusal{"the plastic strain lies beyond the last point of the curve"};
    }
    if (policy == OutsidePolicy::REFUSE && value->outsideTemperature) {
        return Refusal{"the temperature lies outside the curves"};
    }
    return FlowStress{value->stress, value->notes};
}

}  // namespace

Outcome<HardeningProperty> HardeningOf(const Block& plastic) {
    const auto hardening = plastic.values.Get<std::string>("hardening");
    if (!hardening || plastic.tables.empty()) return Refusal{"the block has no hardening with a table"};
    const Table& table = plastic.tables.front();
    if (*hardening == "johnson-cook") {
        const auto law = LawOf(plastic, table);
        if (!law.Ok()) return law.Refused();
        return HardeningProperty{*hardening, *law, true};
    }
    const auto curves = CurvesOf(table);
    if (!curves.Ok()) return curves.Refused();
    const auto range = curves->Temperatures();
    if (!table.temperatureDependent && range.lowest != range.highest) {
        return Refusal{"the table has several temperatures and does not depend on temperature"};
    }
    return HardeningProperty{*hardening, *curves, table.temperatureDependent};
}

Outcome<FlowStress> FlowStressAt(const HardeningProperty& property, double plasticStrain,
                                 std::optional<double> temperature, std::optional<double> strainRate,
                                 OutsidePolicy policy) {
    if (property.temperatureDependent && !temperature) {
        return Refusal{"the stress depends on temperature, and none is given"};
    }
    if (const auto* law = std::get_if<JohnsonCook>(&property.law)) {
        return mechanics::FlowStressOf(*law, plasticStrain, *temperature, strainRate);
    }
    if (strainRate) return Refusal{"a hardening table knows no strain rate"};
    const auto& table = std::get<HardeningTable>(property.law);
    // What does not depend on temperature is the same at every one.
    const double at = property.temperatureDependent ? *temperature : table.Temperatures().lowest;
    return StressOf(table, plasticStrain, at, policy);
}

}  // namespace zelmat
