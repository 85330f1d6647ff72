#include "zelmat/mechanics/fit/LeastSquares.h"

#include <ceres/ceres.h>

#include <algorithm>

namespace zelmat::mechanics {

namespace {

constexpr int kIterations = 500;

class Cost final : public ceres::CostFunction {
public:
    explicit Cost(const LeastSquaresProblem& problem) : problem_(problem) {
        mutable_parameter_block_sizes()->push_back(static_cast<int>(problem.lower.size()));
        set_num_residuals(static_cast<int>(problem.residuals));
    }

    bool Evaluate(double const* const* parameters, double* values, double** jacobians) const override {
        const auto at = problem_.evaluate({parameters[0], parameters[0] + problem_.lower.size()});
        if (!at) return false;
        std::copy(at->values.begin(), at->values.end(), values);
        if (jacobians && jacobians[0]) std::copy(at->jacobian.begin(), at->jacobian.end(), jacobians[0]);
        return true;
    }

private:
    const LeastSquaresProblem& problem_;
};

ceres::Solver::Options Options() {
    ceres::Solver::Options options;
    options.linear_solver_type = ceres::DENSE_QR;
    options.logging_type = ceres::SILENT;
    options.num_threads = 1;
    options.max_num_iterations = kIterations;
    options.max_num_consecutive_invalid_steps = 30;
    options.function_tolerance = 1e-15;
    options.gradient_tolerance = 1e-16;
    options.parameter_tolerance = 1e-14;
    return options;
}

/// A bound counts as reached within what the solver leaves between it and a parameter.
bool IsAt(double value, double bound) {
    return std::abs(bound) < kUnbounded && std::abs(value - bound) <= 1e-9 * std::max(1.0, std::abs(bound));
}

}  // namespace

std::optional<LeastSquaresResult> Minimise(const LeastSquaresProblem& problem, std::vector<double> start) {
    for (std::size_t i = 0; i < start.size(); ++i) {
        start[i] = std::clamp(start[i], problem.lower[i], problem.upper[i]);
    }
    if (!problem.evaluate(start)) return std::nullopt;

    ceres::Problem solved;
    solved.AddResidualBlock(new Cost(problem), nullptr, start.data());
    for (std::size_t i = 0; i < start.size(); ++i) {
        if (problem.lower[i] > -kUnbounded) {
            solved.SetParameterLowerBound(start.data(), static_cast<int>(i), problem.lower[i]);
        }
        if (problem.upper[i] < kUnbounded) {
            solved.SetParameterUpperBound(start.data(), static_cast<int>(i), problem.upper[i]);
        }
    }
    ceres::Solver::Summary summary;
    ceres::Solve(Options(), &solved, &summary);

    auto residuals = problem.evaluate(start);
    if (!residuals) return std::nullopt;
    LeastSquaresResult result{.parameters = start,
                              .residuals = std::move(*residuals),
                              .sum = 0.0,
                              .converged = summary.termination_type == ceres::CONVERGENCE,
                              .atBound = {}};
    for (const double value : result.residuals.values) result.sum += value * value;
    for (std::size_t i = 0; i < start.size(); ++i) {
        result.atBound.push_back(IsAt(start[i], problem.lower[i]) || IsAt(start[i], problem.upper[i]));
    }
    return result;
}

}  // namespace zelmat::mechanics
