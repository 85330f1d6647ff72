#pragma once

#include <vector>

#include "zelmat/mechanics/fit/TestCurve.h"
#include "zelmat/mechanics/hyperelastic/HyperelasticModel.h"

namespace zelmat::mechanics {

/// Coefficients from which a fit may start, the most promising first. Where the stress is linear in all
/// coefficients there is one start, the solution itself. Else the exponents, or the locking stretch, are
/// taken from a grid and the factors solved for. `residualWeights`, one a point, turn a deviation of stress
/// into what is squared.
std::vector<std::vector<double>> FitStarts(HyperelasticModel model, int order,
                                           const std::vector<FitPoint>& points,
                                           const std::vector<double>& residualWeights);

}  // namespace zelmat::mechanics
