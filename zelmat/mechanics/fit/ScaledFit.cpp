#include "zelmat/mechanics/fit/ScaledFit.h"

#include <algorithm>
#include <cmath>

#include "zelmat/mechanics/fit/FitStarts.h"
#include "zelmat/mechanics/hyperelastic/HyperelasticResponse.h"

namespace zelmat::mechanics {

namespace {

constexpr int kFewIterations = 40;         ///< that every start gets
constexpr std::size_t kFinalists = 5;      ///< starts that are followed until they come to rest
constexpr double kMet = 1e-12;             ///< an RMS deviation that no other start needs to improve
constexpr std::size_t kManyPoints = 2000;  ///< more of them are not searched, only followed
constexpr std::size_t kSomePoints = 400;   ///< that are searched in their place

void SortBySum(std::vector<LeastSquaresResult>& minima) {
    std::sort(minima.begin(), minima.end(),
              [](const LeastSquaresResult& a, const LeastSquaresResult& b) { return a.sum < b.sum; });
}

/// Evenly spread over the stretches of each mode, the least and the greatest among them.
std::vector<FitPoint> SomeOf(std::vector<FitPoint> points) {
    std::sort(points.begin(), points.end(), [](const FitPoint& a, const FitPoint& b) {
        return a.mode != b.mode ? a.mode < b.mode : a.stretch < b.stretch;
    });
    const std::size_t step = points.size() / kSomePoints;
    std::vector<FitPoint> some;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const bool first = i == 0 || points[i - 1].mode != points[i].mode;
        const bool last = i + 1 == points.size() || points[i + 1].mode != points[i].mode;
        if (first || last || i % step == 0) some.push_back(points[i]);
    }
    return some;
}

}  // namespace

ScaledFit::ScaledFit(HyperelasticModel model, int order, std::vector<FitPoint> points,
                     DeviationMeasure measure)
    : model_(model), order_(order), measure_(measure), points_(std::move(points)), parameters_(model, order) {
    for (const FitPoint& point : points_) unit_ = std::max(unit_, std::abs(point.nominalStress));
    if (unit_ == 0.0) unit_ = 1.0;
    for (FitPoint& point : points_) {
        point.nominalStress /= unit_;
        const double size = measure == DeviationMeasure::RELATIVE ? std::abs(point.nominalStress) : 1.0;
        weights_.push_back(std::sqrt(point.weight) / size);
    }
    for (const auto& name : CoefficientNames(model, order)) {
        units_.push_back(IsStressCoefficient(name) ? unit_ : 1.0);
    }
}

LeastSquaresProblem ScaledFit::Problem() const {
    return {.lower = parameters_.Lower(),
            .upper = parameters_.Upper(),
            .residuals = points_.size(),
            .evaluate = [this](const std::vector<double>& parameters) { return Evaluate(parameters); }};
}

std::vector<LeastSquaresResult> ScaledFit::Minima() const {
    if (points_.size() <= kManyPoints) return Searched();
    auto minima = Followed(ScaledFit(model_, order_, SomeOf(points_), measure_));
    return minima.empty() ? Searched() : minima;
}

/// All starts descend for a while, the best of them until they come to rest. One that meets the tests exactly
/// ends the search: that other coefficients would, too, is seen in its derivatives.
std::vector<LeastSquaresResult> ScaledFit::Searched() const {
    const LeastSquaresProblem problem = Problem();
    std::vector<LeastSquaresResult> minima;
    for (const auto& start : FitStarts(model_, order_, points_, weights_)) {
        auto minimum = Minimise(problem, parameters_.Parameters(start), kFewIterations);
        if (!minimum) continue;
        if (minimum->sum < kMet * kMet * static_cast<double>(points_.size())) {
            return {Polished(problem, *minimum)};
        }
        minima.push_back(std::move(*minimum));
    }
    SortBySum(minima);
    minima.resize(std::min(minima.size(), kFinalists));
    for (LeastSquaresResult& minimum : minima) {
        if (!minimum.converged) minimum = Minimise(problem, minimum.parameters).value_or(minimum);
    }
    for (LeastSquaresResult& minimum : minima) minimum = Polished(problem, minimum);
    SortBySum(minima);
    return minima;
}

/// `some`: of a part of points_, whose unit is its unit of tests.
std::vector<LeastSquaresResult> ScaledFit::Followed(const ScaledFit& some) const {
    constexpr double kSame = 1e-9;  // several starts lead to one minimum
    constexpr double kNear = 1.3;   // far from the best one, all points do not make it the best
    const LeastSquaresProblem problem = Problem();
    std::vector<LeastSquaresResult> minima;
    const auto searched = some.Searched();
    double last = -1.0;
    for (const LeastSquaresResult& found : searched) {
        if (found.sum <= last * (1.0 + kSame)) continue;
        if (found.sum > kNear * searched.front().sum) break;
        last = found.sum;
        const auto minimum = Minimise(problem, parameters_.Parameters(some.Coefficients(found)));
        if (minimum) minima.push_back(Polished(problem, *minimum));
    }
    SortBySum(minima);
    return minima;
}

std::vector<double> ScaledFit::Coefficients(const LeastSquaresResult& minimum) const {
    auto coefficients = parameters_.Coefficients(minimum.parameters);
    for (std::size_t i = 0; i < units_.size(); ++i) coefficients[i] *= units_[i];
    return coefficients;
}

Uncertainty ScaledFit::UncertaintyAt(const LeastSquaresResult& minimum) const {
    auto uncertainty = UncertaintyOf(minimum, parameters_.Slopes(minimum.parameters));
    for (std::size_t i = 0; i < units_.size(); ++i) {
        if (uncertainty.standardDeviations[i]) *uncertainty.standardDeviations[i] *= units_[i];
    }
    return uncertainty;
}

std::optional<Residuals> ScaledFit::Evaluate(const std::vector<double>& parameters) const {
    const auto energy = MakeStrainEnergy(model_, order_, parameters_.Coefficients(parameters));
    if (!energy.Ok()) return std::nullopt;
    const auto bySlope = parameters_.Slopes(parameters);
    const std::size_t count = parameters.size();
    Residuals residuals{.values = {}, .jacobian = std::vector<double>(points_.size() * count, 0.0)};
    for (std::size_t i = 0; i < points_.size(); ++i) {
        const auto response = Respond(**energy, points_[i].mode, points_[i].stretch);
        if (!response.Ok()) return std::nullopt;
        residuals.values.push_back(weights_[i] * (response->nominalStress - points_[i].nominalStress));
        const auto slopes = NominalStressByCoefficient(**energy, points_[i].mode, points_[i].stretch);
        for (std::size_t c = 0; c < count; ++c) {
            for (std::size_t k = 0; k < count; ++k) {
                residuals.jacobian[i * count + k] += weights_[i] * slopes[c] * bySlope[c * count + k];
            }
        }
    }
    return residuals;
}

}  // namespace zelmat::mechanics
