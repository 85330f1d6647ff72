#include "zelmat/mechanics/fit/HyperelasticFit.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "zelmat/mechanics/fit/ScaledFit.h"
#include "zelmat/mechanics/hyperelastic/HyperelasticResponse.h"

namespace zelmat::mechanics {

namespace {

using enum HyperelasticModel;

constexpr int kGreatestOrder = 8;
constexpr double kNearlySame = 0.01;  ///< RMS deviations that differ by less are nearly the same
constexpr double kDifferent =
    0.01;  ///< coefficients that differ by more are different, relative to the greater one
constexpr double kExact = 1e-9;  ///< an RMS deviation of exact data

/// The places of the coefficients when the terms of OGDEN stand by falling alpha; else as they are.
std::vector<std::size_t> PlacesInOrder(HyperelasticModel model, const std::vector<double>& coefficients) {
    std::vector<std::size_t> places(coefficients.size());
    std::iota(places.begin(), places.end(), 0u);
    if (model != OGDEN) return places;
    std::vector<std::size_t> terms(coefficients.size() / 2);
    std::iota(terms.begin(), terms.end(), 0u);
    std::stable_sort(terms.begin(), terms.end(), [&](std::size_t a, std::size_t b) {
        return coefficients[2 * a + 1] > coefficients[2 * b + 1];
    });
    for (std::size_t i = 0; i < terms.size(); ++i) {
        places[2 * i] = 2 * terms[i];
        places[2 * i + 1] = 2 * terms[i] + 1;
    }
    return places;
}

template <class T>
std::vector<T> Reordered(const std::vector<T>& values, const std::vector<std::size_t>& places) {
    std::vector<T> reordered;
    for (const std::size_t place : places) reordered.push_back(values[place]);
    return reordered;
}

bool Differ(const std::vector<double>& a, const std::vector<double>& b) {
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (std::abs(a[i] - b[i]) > kDifferent * std::max(std::abs(a[i]), std::abs(b[i])) + 1e-12) {
            return true;
        }
    }
    return false;
}

/// The coefficients of other minima that are nearly as deep, each once.
std::vector<std::vector<double>> Alternatives(HyperelasticModel model, const ScaledFit& fit,
                                              const std::vector<LeastSquaresResult>& minima,
                                              std::size_t points) {
    std::vector<std::vector<double>> known;
    const auto rms = [points](const LeastSquaresResult& m) {
        return std::sqrt(m.sum / static_cast<double>(points));
    };
    for (const LeastSquaresResult& minimum : minima) {
        if (rms(minimum) > rms(minima.front()) * (1.0 + kNearlySame) + kExact) break;
        auto coefficients = fit.Coefficients(minimum);
        coefficients = Reordered(coefficients, PlacesInOrder(model, coefficients));
        const bool isNew = std::all_of(known.begin(), known.end(),
                                       [&](const auto& other) { return Differ(other, coefficients); });
        if (isNew) known.push_back(std::move(coefficients));
    }
    known.erase(known.begin());
    return known;
}

std::vector<FitPoint> PointsOf(const std::vector<FitPoint>& points, LoadingMode mode) {
    std::vector<FitPoint> chosen;
    for (const FitPoint& point : points) {
        if (point.mode == mode) chosen.push_back(point);
    }
    return chosen;
}

constexpr LoadingMode kModes[] = {LoadingMode::UNIAXIAL, LoadingMode::EQUIBIAXIAL, LoadingMode::PLANAR,
                                  LoadingMode::SIMPLE_SHEAR};

std::vector<ModeDeviation> DeviationsByMode(const StrainEnergy& energy, const std::vector<FitPoint>& points) {
    std::vector<ModeDeviation> modes;
    for (const LoadingMode mode : kModes) {
        const auto chosen = PointsOf(points, mode);
        const auto deviation = chosen.empty() ? std::nullopt : DeviationOf(energy, chosen);
        if (!deviation) continue;
        const auto [least, greatest] =
            std::minmax_element(chosen.begin(), chosen.end(),
                                [](const FitPoint& a, const FitPoint& b) { return a.stretch < b.stretch; });
        modes.push_back({mode, *deviation, least->stretch, greatest->stretch});
    }
    return modes;
}

bool Holds(const StabilityLimits& limits, const ModeDeviation& tested) {
    return limits.stableAtRest && (!limits.compression || *limits.compression < tested.lower) &&
           (!limits.tension || *limits.tension > tested.upper);
}

std::vector<ModeStability> StabilityByMode(const StrainEnergy& energy,
                                           const std::vector<ModeDeviation>& modes) {
    std::vector<ModeStability> stability;
    for (const LoadingMode mode : kModes) {
        const auto tested =
            std::find_if(modes.begin(), modes.end(), [mode](const auto& m) { return m.mode == mode; });
        if (mode == LoadingMode::SIMPLE_SHEAR && tested == modes.end()) continue;
        auto range = DefaultStabilityRange(mode);
        if (tested != modes.end()) {
            range = {std::min(range.lower, tested->lower), std::max(range.upper, tested->upper)};
        }
        for (const auto criterion : {StabilityCriterion::DRUCKER, StabilityCriterion::DEAD_LOAD}) {
            const auto limits = FindStabilityLimits(energy, criterion, mode, range);
            std::optional<bool> inside;
            if (tested != modes.end()) inside = Holds(limits, *tested);
            stability.push_back({mode, criterion, limits, inside});
        }
    }
    return stability;
}

bool HasTwoInvariants(HyperelasticModel model) {
    return model == MOONEY_RIVLIN || model == POLYNOMIAL || model == VAN_DER_WAALS;
}

void AddWarnings(HyperelasticFit& fit, const Uncertainty& uncertainty, bool converged, bool smallestModulus) {
    if (!converged) fit.warnings.push_back("the fit stopped before it came to rest");
    if (fit.modes.size() == 1 && HasTwoInvariants(fit.model)) {
        fit.warnings.push_back("one mode of test only: it cannot tell the parts of the two invariants apart");
    }
    if (!uncertainty.distinguishable) {
        fit.warnings.push_back("the tests cannot tell the coefficients apart: others give the same response");
    }
    if (!fit.alternatives.empty()) {
        fit.warnings.push_back("not unique: other coefficients come nearly as close to the tests");
    }
    if (smallestModulus) fit.warnings.push_back("mu0 is at its bound: the tests ask for a negative modulus");
    for (const FittedCoefficient& coefficient : fit.coefficients) {
        if (coefficient.atBound) fit.warnings.push_back(coefficient.name + " is at its bound");
    }
    for (const ModeStability& stability : fit.stability) {
        if (!stability.dataInside.value_or(true)) {
            fit.warnings.push_back("unstable within the range of the " +
                                   std::string(Keyword(stability.mode)) + " test by the criterion " +
                                   std::string(Keyword(stability.criterion)));
        }
    }
}

}  // namespace

std::vector<double> HyperelasticFit::Values() const {
    std::vector<double> values;
    for (const FittedCoefficient& coefficient : coefficients) values.push_back(coefficient.value);
    return values;
}

std::optional<FitDeviation> DeviationOf(const StrainEnergy& energy, const std::vector<FitPoint>& points) {
    if (points.empty()) return std::nullopt;
    std::vector<double> computed, measured;
    for (const FitPoint& point : points) {
        const auto response = Respond(energy, point.mode, point.stretch);
        if (!response.Ok()) return std::nullopt;
        computed.push_back(response->nominalStress);
        measured.push_back(point.nominalStress);
    }
    return DeviationOf(computed, measured);
}

Outcome<HyperelasticFit> FitHyperelastic(HyperelasticModel model, int order,
                                         const std::vector<TestCurve>& curves, DeviationMeasure measure) {
    if (HasOrder(model) && (order < 1 || order > kGreatestOrder)) {
        return Refusal{"the order of a fit lies between 1 and " + std::to_string(kGreatestOrder)};
    }
    const auto names = CoefficientNames(model, order);
    const auto data = TakeTestData(curves, measure);
    if (!data.Ok()) return data.Refused();
    if (data->points.size() < names.size()) {
        return Refusal{std::to_string(data->points.size()) + " test points are too few for the " +
                       std::to_string(names.size()) + " coefficients of " + std::string(Keyword(model))};
    }

    const ScaledFit scaled(model, order, data->points, measure);
    const auto minima = scaled.Minima();
    if (minima.empty()) return Refusal{"no start of the fit has a finite response at all test points"};
    const auto& best = minima.front();
    const auto found = scaled.Coefficients(best);
    const auto energy = MakeStrainEnergy(model, order, found);
    if (!energy.Ok()) return energy.Refused();
    const auto deviation = DeviationOf(**energy, data->points);
    if (!deviation || !std::isfinite(deviation->rmsAbsolute)) {
        return Refusal{"the fitted response is too great for a number"};
    }

    const auto uncertainty = scaled.UncertaintyAt(best);
    const auto places = PlacesInOrder(model, found);
    HyperelasticFit fit{.model = model,
                        .order = order,
                        .measure = measure,
                        .coefficients = {},
                        .shearModulus = (*energy)->ShearModulus(),
                        .deviation = *deviation,
                        .modes = DeviationsByMode(**energy, data->points),
                        .stability = {},
                        .correlations = {},
                        .alternatives = Alternatives(model, scaled, minima, data->points.size()),
                        .notes = data->notes,
                        .warnings = data->warnings};
    std::vector<std::string> namesAsFitted(names.size());
    for (std::size_t i = 0; i < names.size(); ++i) {
        const std::size_t place = places[i];
        namesAsFitted[place] = names[i];
        fit.coefficients.push_back(
            {names[i], found[place], uncertainty.standardDeviations[place], best.atBound[place]});
    }
    fit.correlations = StrongCorrelations(uncertainty, namesAsFitted);
    fit.stability = StabilityByMode(**energy, fit.modes);
    AddWarnings(fit, uncertainty, best.converged, best.atBound.front());
    return fit;
}

}  // namespace zelmat::mechanics
