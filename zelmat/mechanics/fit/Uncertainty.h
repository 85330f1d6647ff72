#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/mechanics/fit/LeastSquares.h"

namespace zelmat::mechanics {

/// A coefficient that a fit found.
struct FittedCoefficient {
    std::string name;
    double value;
    /// From s^2 (J'J)^-1, s^2 = SSR/(n - p), n points and p coefficients that are not at a bound. Nothing for
    /// a coefficient at its bound, for as many points as coefficients, and where the data cannot tell the
    /// coefficients apart.
    std::optional<double> standardDeviation;
    bool atBound = false;
};

/// Two coefficients whose errors go together.
struct Correlation {
    std::string first, second;
    double value;  ///< -1 to 1
};

/// What the curvature of the sum of squares says about the coefficients.
struct Uncertainty {
    std::vector<std::optional<double>> standardDeviations;  ///< by coefficient
    std::vector<std::vector<double>> correlations;          ///< square; 0 where there is none
    bool distinguishable = true;  ///< false: other coefficients give the same residuals
};

/// `slopes` is d coefficient_i / d parameter_k, row-major: coefficients are functions of the parameters that
/// were fitted.
Uncertainty UncertaintyOf(const LeastSquaresResult& result, const std::vector<double>& slopes);

/// The pairs whose correlation is above 0.95 in size.
std::vector<Correlation> StrongCorrelations(const Uncertainty& uncertainty,
                                            const std::vector<std::string>& names);

}  // namespace zelmat::mechanics
