#include "zelmat/mechanics/fit/HardeningFit.h"

#include <algorithm>
#include <cmath>

#include "zelmat/mechanics/fit/LeastSquares.h"
#include "zelmat/mechanics/fit/LinearLeastSquares.h"

namespace zelmat::mechanics {

namespace {

using enum HardeningLaw;

constexpr double kLeastExponent = 0.0, kGreatestExponent = 2.0;

struct Bounds {
    std::vector<double> lower, upper;
};

Bounds BoundsOf(HardeningLaw law) {
    switch (law) {
        case LUDWIK:
        case JOHNSON_COOK:
            return {{0.0, 0.0, kLeastExponent}, {kUnbounded, kUnbounded, kGreatestExponent}};
        case SWIFT:
            return {{0.0, 1e-9, kLeastExponent}, {kUnbounded, 1.0, kGreatestExponent}};
        case VOCE:
            return {{0.0, 0.0, 1e-6}, {kUnbounded, kUnbounded, 100.0}};
    }
    return {};
}

/// The points with stresses of the order of 1, and what turns a deviation into what is squared.
struct ScaledCurve {
    std::vector<StressStrain> points;
    std::vector<double> weights;
    double unit;
};

ScaledCurve Scaled(const std::vector<StressStrain>& points, DeviationMeasure measure) {
    ScaledCurve curve{.points = points, .weights = {}, .unit = 0.0};
    for (const StressStrain& point : points) curve.unit = std::max(curve.unit, std::abs(point.stress));
    if (curve.unit == 0.0) curve.unit = 1.0;
    for (StressStrain& point : curve.points) {
        point.stress /= curve.unit;
        curve.weights.push_back(measure == DeviationMeasure::RELATIVE ? 1.0 / std::abs(point.stress) : 1.0);
    }
    return curve;
}

Residuals Evaluate(HardeningLaw law, const ScaledCurve& curve, const std::vector<double>& coefficients) {
    Residuals residuals;
    for (std::size_t i = 0; i < curve.points.size(); ++i) {
        const auto value = StressOf(law, coefficients, curve.points[i].strain);
        residuals.values.push_back(curve.weights[i] * (value.stress - curve.points[i].stress));
        for (const double slope : value.byCoefficient) residuals.jacobian.push_back(curve.weights[i] * slope);
    }
    return residuals;
}

/// Coefficients with the factors of stress solved for; `fixed` are the others, with 0 in the places of the
/// factors.
std::vector<double> WithFactors(HardeningLaw law, const ScaledCurve& curve, std::vector<double> fixed,
                                const std::vector<std::size_t>& factors) {
    std::vector<std::vector<double>> columns(factors.size());
    std::vector<double> target;
    for (std::size_t i = 0; i < curve.points.size(); ++i) {
        const auto slopes = StressOf(law, fixed, curve.points[i].strain).byCoefficient;
        for (std::size_t k = 0; k < factors.size(); ++k) {
            columns[k].push_back(curve.weights[i] * slopes[factors[k]]);
        }
        target.push_back(curve.weights[i] * curve.points[i].stress);
    }
    const auto solved = SolveLinear(columns, target);
    for (std::size_t k = 0; k < factors.size(); ++k) fixed[factors[k]] = solved[k];
    return fixed;
}

std::vector<std::vector<double>> Starts(HardeningLaw law, const ScaledCurve& curve) {
    std::vector<std::vector<double>> starts;
    switch (law) {
        case LUDWIK:
        case JOHNSON_COOK:
            for (const double n : {0.1, 0.3, 0.5, 0.8})
                starts.push_back(WithFactors(law, curve, {0, 0, n}, {0, 1}));
            break;
        case SWIFT:
            for (const double n : {0.1, 0.2, 0.4}) {
                for (const double offset : {1e-4, 1e-3, 1e-2}) {
                    starts.push_back(WithFactors(law, curve, {0, offset, n}, {0}));
                }
            }
            break;
        case VOCE:
            for (const double strain : {0.005, 0.02, 0.1, 0.5}) {
                starts.push_back(WithFactors(law, curve, {0, 0, strain}, {0, 1}));
            }
            break;
    }
    return starts;
}

std::optional<LeastSquaresResult> BestMinimum(HardeningLaw law, const ScaledCurve& curve) {
    const auto [lower, upper] = BoundsOf(law);
    const LeastSquaresProblem problem{
        .lower = lower,
        .upper = upper,
        .residuals = curve.points.size(),
        .evaluate = [&](const std::vector<double>& at) { return std::optional(Evaluate(law, curve, at)); }};
    std::optional<LeastSquaresResult> best;
    for (const auto& start : Starts(law, curve)) {
        const auto minimum = Minimise(problem, start);
        if (minimum && (!best || minimum->sum < best->sum)) best = minimum;
    }
    if (best) best = Polished(problem, *best);
    return best;
}

Outcome<std::vector<StressStrain>> Counting(const std::vector<StressStrain>& points,
                                            DeviationMeasure measure) {
    std::vector<StressStrain> counting;
    for (const StressStrain& point : points) {
        if (!std::isfinite(point.strain) || !std::isfinite(point.stress) || point.strain < 0.0) {
            return Refusal{"plastic strains and stresses have to be finite numbers, strains from 0 on"};
        }
        if (measure == DeviationMeasure::ABSOLUTE || point.stress != 0.0) counting.push_back(point);
    }
    return counting;
}

FitDeviation Deviation(HardeningLaw law, const std::vector<double>& coefficients,
                       const std::vector<StressStrain>& points) {
    std::vector<double> computed, measured;
    for (const StressStrain& point : points) {
        computed.push_back(StressOf(law, coefficients, point.strain).stress);
        measured.push_back(point.stress);
    }
    return DeviationOf(computed, measured);
}

}  // namespace

std::vector<double> HardeningFit::Values() const {
    std::vector<double> values;
    for (const FittedCoefficient& coefficient : coefficients) values.push_back(coefficient.value);
    return values;
}

Outcome<HardeningFit> FitHardening(HardeningLaw law, const std::vector<StressStrain>& points,
                                   DeviationMeasure measure) {
    const auto counting = Counting(points, measure);
    if (!counting.Ok()) return counting.Refused();
    const auto names = CoefficientNames(law);
    if (counting->size() < names.size()) {
        return Refusal{std::to_string(counting->size()) + " points are too few for the " +
                       std::to_string(names.size()) + " coefficients of " + std::string(Keyword(law))};
    }
    const ScaledCurve curve = Scaled(*counting, measure);
    const auto best = BestMinimum(law, curve);
    if (!best) return Refusal{"no start of the fit has a finite stress at all points"};

    std::vector<double> identity(names.size() * names.size(), 0.0);
    for (std::size_t i = 0; i < names.size(); ++i) identity[i * names.size() + i] = 1.0;
    const auto uncertainty = UncertaintyOf(*best, identity);
    HardeningFit fit{};
    fit.law = law;
    if (counting->size() < points.size()) {
        fit.notes.push_back("points of zero stress that do not count: " +
                            std::to_string(points.size() - counting->size()));
    }
    if (!std::is_sorted(points.begin(), points.end(),
                        [](const StressStrain& a, const StressStrain& b) { return a.strain < b.strain; })) {
        fit.warnings.push_back("the plastic strains do not rise from point to point: taken as they stand");
    }
    std::vector<double> coefficients;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const double unit = IsStressOfLaw(names[i]) ? curve.unit : 1.0;
        auto deviation = uncertainty.standardDeviations[i];
        if (deviation) *deviation *= unit;
        coefficients.push_back(best->parameters[i] * unit);
        fit.coefficients.push_back({names[i], coefficients.back(), deviation, best->atBound[i]});
        if (best->atBound[i]) fit.warnings.push_back(names[i] + " is at its bound");
    }
    if (!best->converged) fit.warnings.push_back("the fit stopped before it came to rest");
    if (!uncertainty.distinguishable) {
        fit.warnings.push_back("the points cannot tell the coefficients apart: others give the same stress");
    }
    fit.correlations = StrongCorrelations(uncertainty, names);
    fit.deviation = Deviation(law, coefficients, *counting);
    return fit;
}

}  // namespace zelmat::mechanics
