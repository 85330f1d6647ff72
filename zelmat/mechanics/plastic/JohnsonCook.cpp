#include "zelmat/mechanics/plastic/JohnsonCook.h"

#include <algorithm>
#include <cmath>

namespace zelmat::mechanics {

namespace {

std::optional<Refusal> Fault(const JohnsonCook& law, double plasticStrain, double temperature,
                             std::optional<double> strainRate) {
    for (const double number :
         {law.a, law.b, law.n, law.m, law.meltingTemperature, law.transitionTemperature}) {
        if (!std::isfinite(number))
            return Refusal{"a coefficient of Johnson and Cook's law is not a finite number"};
    }
    if (law.n < 0.0 || law.m <= 0.0) return Refusal{"n may not be below 0 and m has to be above 0"};
    if (law.meltingTemperature <= law.transitionTemperature) {
        return Refusal{"the melting temperature has to be above the transition temperature"};
    }
    if (!std::isfinite(plasticStrain) || plasticStrain < 0.0) {
        return Refusal{"a plastic strain has to be a finite number from 0 on"};
    }
    if (!std::isfinite(temperature)) return Refusal{"a temperature has to be a finite number"};
    if (!strainRate) return std::nullopt;
    if (!law.rate)
        return Refusal{"a strain rate needs C and the reference rate, and the material does not have both"};
    if (!std::isfinite(law.rate->c) || !(law.rate->referenceRate > 0.0)) {
        return Refusal{"C has to be a finite number and the reference rate above 0"};
    }
    if (!std::isfinite(*strainRate) || *strainRate <= 0.0) {
        return Refusal{"a strain rate has to be a finite number above 0"};
    }
    return std::nullopt;
}

}  // namespace

Outcome<FlowStress> FlowStressOf(const JohnsonCook& law, double plasticStrain, double temperature,
                                 std::optional<double> strainRate) {
    if (const auto fault = Fault(law, plasticStrain, temperature, strainRate)) return *fault;
    FlowStress flow{.stress = law.a + law.b * std::pow(plasticStrain, law.n), .notes = {}};
    if (!strainRate) {
        flow.notes.push_back("the factor of the strain rate is 1");
    } else {
        const double factor = 1.0 + law.rate->c * std::log(*strainRate / law.rate->referenceRate);
        flow.stress *= std::max(factor, 0.0);
        if (*strainRate < law.rate->referenceRate) flow.notes.push_back("below the reference strain rate");
        if (factor <= 0.0) flow.notes.push_back("the factor of the strain rate is not above 0: taken as 0");
    }
    if (temperature >= law.meltingTemperature) {
        flow.stress = 0.0;
        flow.notes.push_back("at or above the melting temperature: no stress");
    } else if (temperature < law.transitionTemperature) {
        flow.notes.push_back("below the transition temperature: the factor of temperature is 1");
    } else {
        const double homologous =
            (temperature - law.transitionTemperature) / (law.meltingTemperature - law.transitionTemperature);
        flow.stress *= 1.0 - std::pow(homologous, law.m);
    }
    return flow;
}

Outcome<HardeningTable> Tabulated(const JohnsonCook& law, const std::vector<double>& temperatures,
                                  const std::vector<double>& plasticStrains,
                                  std::optional<double> strainRate) {
    std::vector<HardeningPoint> points;
    for (const double temperature : temperatures) {
        for (const double strain : plasticStrains) {
            const auto flow = FlowStressOf(law, strain, temperature, strainRate);
            if (!flow.Ok()) return flow.Refused();
            points.push_back({.stress = flow->stress, .plasticStrain = strain, .temperature = temperature});
        }
    }
    return HardeningTable::Over(std::move(points));
}

std::vector<double> TabulationStrains(double greatest, int count) {
    std::vector<double> strains;
    for (int i = 0; i <= count; ++i) strains.push_back(greatest * i * i / (1.0 * count * count));
    return strains;
}

}  // namespace zelmat::mechanics
