#pragma once

#include <functional>
#include <limits>
#include <optional>
#include <vector>

namespace zelmat::mechanics {

/// Residuals and their derivatives at a set of parameters.
struct Residuals {
    std::vector<double> values;
    std::vector<double> jacobian;  ///< row-major: d value_i / d parameter_k at i * parameters + k
};

constexpr double kUnbounded = std::numeric_limits<double>::max();

/// Sum of squares of residuals, to be made small within bounds. Parameters and residuals should be of the
/// order of 1.
struct LeastSquaresProblem {
    std::vector<double> lower, upper;  ///< by parameter; -kUnbounded and kUnbounded for none
    std::size_t residuals;
    /// Nothing where the model has no value: such a place is never accepted, nor is one with numbers that are
    /// not finite.
    std::function<std::optional<Residuals>(const std::vector<double>& parameters)> evaluate;
};

struct LeastSquaresResult {
    std::vector<double> parameters;
    Residuals residuals;
    double sum;      ///< of the squares
    bool converged;  ///< false: stopped by the number of iterations
    std::vector<bool> atBound;
};

/// Iterations after which a descent that has not come to rest is given up.
constexpr int kManyIterations = 500;

/// The nearest minimum downhill from the start, which is moved into the bounds first. Nothing where the model
/// has no value at the start. Levenberg-Marquardt of Ceres Solver.
std::optional<LeastSquaresResult> Minimise(const LeastSquaresProblem& problem, std::vector<double> start,
                                           int iterations = kManyIterations);

/// A minimum to the last digits that its derivatives have, by the steps of Gauss and Newton: where the sum no
/// longer falls in its digits a descent stops, which leaves the parameters half of theirs. Parameters at a
/// bound stay there. The same minimum when the steps do not shrink.
LeastSquaresResult Polished(const LeastSquaresProblem& problem, const LeastSquaresResult& minimum);

}  // namespace zelmat::mechanics
