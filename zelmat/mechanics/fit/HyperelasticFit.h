#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/mechanics/fit/FitDeviation.h"
#include "zelmat/mechanics/fit/TestCurve.h"
#include "zelmat/mechanics/fit/Uncertainty.h"
#include "zelmat/mechanics/hyperelastic/Stability.h"

namespace zelmat::mechanics {

struct ModeDeviation {
    LoadingMode mode;
    FitDeviation deviation;
    double lower, upper;  ///< the stretches of the points
};

/// A criterion's limits in one mode.
struct ModeStability {
    LoadingMode mode;
    StabilityCriterion criterion;
    StabilityLimits limits;
    std::optional<bool>
        dataInside;  ///< whether all points of this mode lie where it is stable; nothing without points
};

/// A potential fitted to tests, with how far it can be trusted.
struct HyperelasticFit {
    HyperelasticModel model;
    int order;
    DeviationMeasure measure;
    std::vector<FittedCoefficient> coefficients;  ///< as CoefficientNames; OGDEN by falling alpha
    double shearModulus;                          ///< mu0
    FitDeviation deviation;                       ///< of all points together
    std::vector<ModeDeviation> modes;             ///< in the order of LoadingMode
    std::vector<ModeStability> stability;         ///< the three modes of stretch, and shear if it was tested
    std::vector<Correlation> correlations;        ///< above 0.95
    std::vector<std::vector<double>> alternatives;  ///< other coefficients with nearly the same deviation
    std::vector<std::string> notes;                 ///< which points do not count
    std::vector<std::string> warnings;              ///< why not to trust it

    std::vector<double> Values() const;
};

/// Least squares over all points of all tests together, relative or absolute, within the bounds of
/// FitParameters, from several starts where the potential is not linear in its coefficients. Stresses in any
/// one unit, in which the coefficients come. Refuses data that TakeTestData refuses, fewer points than
/// coefficients, and orders below 1 or above 8.
Outcome<HyperelasticFit> FitHyperelastic(HyperelasticModel model, int order,
                                         const std::vector<TestCurve>& curves, DeviationMeasure measure);

/// How near given coefficients come to the tests; nothing without points and where the potential ends before
/// one.
std::optional<FitDeviation> DeviationOf(const StrainEnergy& energy, const std::vector<FitPoint>& points);

}  // namespace zelmat::mechanics
