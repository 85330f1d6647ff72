#pragma once

#include <string>
#include <vector>

#include "zelmat/mechanics/fit/HyperelasticFit.h"

namespace zelmat::mechanics {

/// A potential that could not be fitted, and why.
struct FailedFit {
    HyperelasticModel model;
    int order;
    std::string why;
};

/// All potentials fitted to the same tests.
struct FitRanking {
    std::vector<HyperelasticFit> fits;  ///< the smallest RMS deviation of the measure first
    std::vector<FailedFit> failed;
};

/// All eight potentials; REDUCED_POLYNOMIAL of orders 2 and 4 (1 is NEO_HOOKE, 3 is YEOH), POLYNOMIAL of
/// orders 2 and 3 (1 is MOONEY_RIVLIN), OGDEN of orders 1 to 3. With an order, these three of that order
/// only.
FitRanking FitAllModels(const std::vector<TestCurve>& curves, DeviationMeasure measure,
                        std::optional<int> order = {});

}  // namespace zelmat::mechanics
