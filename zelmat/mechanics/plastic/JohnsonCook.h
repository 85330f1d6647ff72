#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/mechanics/Outcome.h"
#include "zelmat/mechanics/plastic/HardeningTable.h"

namespace zelmat::mechanics {

/// The strain-rate part: 1 + C ln(rate/rate0). A table of six coefficients does not hold it; a card may.
struct JohnsonCookRate {
    double c;
    double referenceRate;  ///< 1/s, above 0
};

/// sigma = (A + B eps_p^n) (1 + C ln(rate/rate0)) (1 - T*^m), T* = (T - Tt)/(Tm - Tt); T* = 0 below the
/// transition temperature Tt, sigma = 0 at and above the melting temperature Tm. A and B in any one unit of
/// stress, in which sigma comes; temperatures both in kelvin or both in degrees Celsius. G. R. Johnson, W. H.
/// Cook, Proc. 7th Int. Symp. on Ballistics, 1983.
struct JohnsonCook {
    double a, b, n, m;
    double meltingTemperature, transitionTemperature;
    std::optional<JohnsonCookRate> rate;
};

/// A stress of a hardening law or table.
struct FlowStress {
    double stress;
    std::vector<std::string> notes;  ///< "below the transition temperature", "molten", ...
};

/// Without a strain rate the rate factor is 1. Refused for a negative plastic strain, n < 0, m <= 0, Tm not
/// above Tt, a strain rate that is not above 0, and a strain rate where there are no C and reference rate.
Outcome<FlowStress> FlowStressOf(const JohnsonCook& law, double plasticStrain, double temperature,
                                 std::optional<double> strainRate = {});

/// Hardening curves for programs that have no such law: one at each temperature, all at the same plastic
/// strains, of which 0 has to be the first. Refused as FlowStressOf and HardeningTable::Over refuse.
Outcome<HardeningTable> Tabulated(const JohnsonCook& law, const std::vector<double>& temperatures,
                                  const std::vector<double>& plasticStrains,
                                  std::optional<double> strainRate = {});

/// Plastic strains from 0 to the greatest one, closer together towards 0, where the law bends most: greatest
/// (i/count)^2.
std::vector<double> TabulationStrains(double greatest, int count);

}  // namespace zelmat::mechanics
