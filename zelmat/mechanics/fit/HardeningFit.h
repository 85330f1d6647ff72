#pragma once

#include <string>
#include <vector>

#include "zelmat/mechanics/Outcome.h"
#include "zelmat/mechanics/fit/FitDeviation.h"
#include "zelmat/mechanics/fit/TestCurve.h"
#include "zelmat/mechanics/fit/Uncertainty.h"
#include "zelmat/mechanics/plastic/HardeningLaw.h"
#include "zelmat/mechanics/plastic/StressStrain.h"

namespace zelmat::mechanics {

/// A hardening law fitted to a curve.
struct HardeningFit {
    HardeningLaw law;
    std::vector<FittedCoefficient> coefficients;  ///< as CoefficientNames; stresses in the unit of the points
    FitDeviation deviation;                       ///< of the points that count
    std::vector<Correlation> correlations;
    std::vector<std::string> notes;     ///< which points do not count
    std::vector<std::string> warnings;  ///< why not to trust it

    std::vector<double> Values() const;
};

/// Least squares over the points (plastic strain, true stress) of one curve at one temperature. Bounds:
/// stresses from 0 on, n from 0 to 2, e_0 from 1e-9 to 1, e_c from 1e-6 to 100. Points of zero stress do not
/// count in the relative measure. Refused for fewer points than coefficients, negative plastic strains and
/// numbers that are not finite.
Outcome<HardeningFit> FitHardening(HardeningLaw law, const std::vector<StressStrain>& points,
                                   DeviationMeasure measure);

}  // namespace zelmat::mechanics
