#include "zelmat/mechanics/fit/LeastSquares.h"

#include <ceres/ceres.h>

#include <Eigen/Dense>
#include <algorithm>
#include <cmath>

namespace zelmat::mechanics {

namespace {

constexpr int kRounds = 5;  ///< of descending with the parameters at their bounds held

/// A value or a derivative that is not finite counts as no value.
std::optional<Residuals> FiniteAt(const LeastSquaresProblem& problem, const std::vector<double>& parameters) {
    auto residuals = problem.evaluate(parameters);
    const auto finite = [](double value) { return std::isfinite(value); };
    if (!residuals || !std::all_of(residuals->values.begin(), residuals->values.end(), finite) ||
        !std::all_of(residuals->jacobian.begin(), residuals->jacobian.end(), finite)) {
        return std::nullopt;
    }
    return residuals;
}

class Cost final : public ceres::CostFunction {
public:
    explicit Cost(const LeastSquaresProblem& problem) : problem_(problem) {
        mutable_parameter_block_sizes()->push_back(static_cast<int>(problem.lower.size()));
        set_num_residuals(static_cast<int>(problem.residuals));
    }

    bool Evaluate(double const* const* parameters, double* values, double** jacobians) const override {
        const auto at = FiniteAt(problem_, {parameters[0], parameters[0] + problem_.lower.size()});
        if (!at) return false;
        std::copy(at->values.begin(), at->values.end(), values);
        if (jacobians && jacobians[0]) std::copy(at->jacobian.begin(), at->jacobian.end(), jacobians[0]);
        return true;
    }

private:
    const LeastSquaresProblem& problem_;
};

ceres::Solver::Options Options(int iterations) {
    ceres::Solver::Options options;
    options.linear_solver_type = ceres::DENSE_QR;
    options.logging_type = ceres::SILENT;
    options.num_threads = 1;
    options.max_num_iterations = iterations;
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

std::vector<bool> AtBounds(const LeastSquaresProblem& problem, const std::vector<double>& parameters) {
    std::vector<bool> at;
    for (std::size_t i = 0; i < parameters.size(); ++i) {
        at.push_back(IsAt(parameters[i], problem.lower[i]) || IsAt(parameters[i], problem.upper[i]));
    }
    return at;
}

double SumOfSquares(const Residuals& residuals) {
    double sum = 0.0;
    for (const double value : residuals.values) sum += value * value;
    return sum;
}

/// Moves the parameters that are not held downhill as far as the solver gets; whether it came to rest.
bool Descend(const LeastSquaresProblem& problem, std::vector<double>& parameters,
             const std::vector<bool>& held, int iterations) {
    std::vector<int> constant;
    for (std::size_t i = 0; i < held.size(); ++i) {
        if (held[i]) constant.push_back(static_cast<int>(i));
    }
    const int count = static_cast<int>(parameters.size());
    if (static_cast<int>(constant.size()) == count) return true;

    ceres::Problem solved;
    solved.AddResidualBlock(new Cost(problem), nullptr, parameters.data());
    if (!constant.empty()) solved.SetManifold(parameters.data(), new ceres::SubsetManifold(count, constant));
    for (int i = 0; i < count; ++i) {
        const auto place = static_cast<std::size_t>(i);
        if (problem.lower[place] > -kUnbounded)
            solved.SetParameterLowerBound(parameters.data(), i, problem.lower[place]);
        if (problem.upper[place] < kUnbounded)
            solved.SetParameterUpperBound(parameters.data(), i, problem.upper[place]);
    }
    ceres::Solver::Summary summary;
    ceres::Solve(Options(iterations), &solved, &summary);
    return summary.termination_type == ceres::CONVERGENCE;
}

}  // namespace

std::optional<LeastSquaresResult> Minimise(const LeastSquaresProblem& problem, std::vector<double> start,
                                           int iterations) {
    for (std::size_t i = 0; i < start.size(); ++i) {
        start[i] = std::clamp(start[i], problem.lower[i], problem.upper[i]);
    }
    auto residuals = FiniteAt(problem, start);
    if (!residuals) return std::nullopt;

    // The solver's steps are cut off at the bounds and stall there before the other parameters have come to
    // rest: these descend once more with the ones at their bounds held, then all of them again, in case one
    // wants to leave its bound.
    bool converged = false;
    double before = 0.0;
    for (int round = 0; round < kRounds; ++round) {
        converged = Descend(problem, start, std::vector<bool>(start.size(), false), iterations);
        const auto held = AtBounds(problem, start);
        if (std::none_of(held.begin(), held.end(), [](bool at) { return at; })) break;
        converged = Descend(problem, start, held, iterations);
        residuals = FiniteAt(problem, start);
        if (!residuals) return std::nullopt;
        const double sum = SumOfSquares(*residuals);
        if (round > 0 && sum >= before * (1.0 - 1e-12)) break;
        before = sum;
    }
    residuals = FiniteAt(problem, start);
    if (!residuals) return std::nullopt;
    return LeastSquaresResult{.parameters = start,
                              .residuals = *residuals,
                              .sum = SumOfSquares(*residuals),
                              .converged = converged,
                              .atBound = AtBounds(problem, start)};
}

namespace {

/// The step of the parameters that are free to move, 0 for the others.
std::vector<double> GaussNewtonStep(const LeastSquaresResult& at) {
    const auto rows = static_cast<Eigen::Index>(at.residuals.values.size());
    const std::size_t count = at.parameters.size();
    std::vector<std::size_t> free;
    for (std::size_t k = 0; k < count; ++k) {
        if (!at.atBound[k]) free.push_back(k);
    }
    std::vector<double> step(count, 0.0);
    if (free.empty()) return step;
    Eigen::MatrixXd slopes(rows, static_cast<Eigen::Index>(free.size()));
    for (Eigen::Index i = 0; i < rows; ++i) {
        for (std::size_t k = 0; k < free.size(); ++k) {
            slopes(i, static_cast<Eigen::Index>(k)) =
                at.residuals.jacobian[static_cast<std::size_t>(i) * count + free[k]];
        }
    }
    // What the residuals do not depend on but for rounding stays where it is.
    constexpr double kRounding = 1e-10;
    Eigen::VectorXd lengths = slopes.colwise().norm();
    const double longest = lengths.maxCoeff();
    for (Eigen::Index k = 0; k < lengths.size(); ++k) {
        const bool acts = lengths(k) > kRounding * longest;
        if (!acts) lengths(k) = 1.0;
        slopes.col(k) *= acts ? 1.0 / lengths(k) : 0.0;
    }
    const Eigen::Map<const Eigen::VectorXd> values(at.residuals.values.data(), rows);
    Eigen::CompleteOrthogonalDecomposition<Eigen::MatrixXd> decomposed;
    decomposed.setThreshold(kRounding);
    const Eigen::VectorXd solved = decomposed.compute(slopes).solve(values);
    for (std::size_t k = 0; k < free.size(); ++k) {
        const auto place = static_cast<Eigen::Index>(k);
        step[free[k]] = -solved(place) / lengths(place);
    }
    return step;
}

}  // namespace

LeastSquaresResult Polished(const LeastSquaresProblem& problem, const LeastSquaresResult& minimum) {
    constexpr int kSteps = 60;
    constexpr double kRounding = 1e-9;  // by which a sum may rise without being greater
    LeastSquaresResult at = minimum;
    double last = 1e-3;  // of a minimum that is at rest, only small steps lead to it
    for (int i = 0; i < kSteps; ++i) {
        const auto step = GaussNewtonStep(at);
        auto next = at.parameters;
        double size = 0.0;
        bool inside = true;
        for (std::size_t k = 0; k < step.size(); ++k) {
            next[k] += step[k];
            size = std::max(size, std::abs(step[k]) / std::max(1.0, std::abs(next[k])));
            inside = inside && next[k] >= problem.lower[k] && next[k] <= problem.upper[k];
        }
        if (!inside || !(size < last) || size == 0.0) break;
        auto residuals = FiniteAt(problem, next);
        const double sum = residuals ? SumOfSquares(*residuals) : kUnbounded;
        if (sum > minimum.sum * (1.0 + kRounding)) break;
        at.parameters = std::move(next);
        at.residuals = std::move(*residuals);
        at.sum = sum;
        last = size;
    }
    return at;
}

}  // namespace zelmat::mechanics
