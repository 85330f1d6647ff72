#include "zelmat/mechanics/fit/FitRanking.h"

#include <algorithm>
#include <utility>

namespace zelmat::mechanics {

namespace {

using enum HyperelasticModel;

std::vector<std::pair<HyperelasticModel, int>> Candidates(std::optional<int> order) {
    std::vector<std::pair<HyperelasticModel, int>> candidates = {
        {NEO_HOOKE, 1}, {MOONEY_RIVLIN, 1}, {YEOH, 3}, {ARRUDA_BOYCE, 1}, {VAN_DER_WAALS, 1}};
    if (order) {
        for (const auto model : {OGDEN, POLYNOMIAL, REDUCED_POLYNOMIAL})
            candidates.emplace_back(model, *order);
        return candidates;
    }
    for (const int terms : {1, 2, 3}) candidates.emplace_back(OGDEN, terms);
    for (const int terms : {2, 3}) candidates.emplace_back(POLYNOMIAL, terms);
    for (const int terms : {2, 4}) candidates.emplace_back(REDUCED_POLYNOMIAL, terms);
    return candidates;
}

double Ranked(const HyperelasticFit& fit) {
    return fit.measure == DeviationMeasure::RELATIVE ? fit.deviation.rmsRelative.value_or(0.0)
                                                     : fit.deviation.rmsAbsolute;
}

}  // namespace

FitRanking FitAllModels(const std::vector<TestCurve>& curves, DeviationMeasure measure,
                        std::optional<int> order) {
    FitRanking ranking;
    for (const auto& [model, terms] : Candidates(order)) {
        const auto fit = FitHyperelastic(model, terms, curves, measure);
        if (fit.Ok()) {
            ranking.fits.push_back(*fit);
        } else {
            ranking.failed.push_back({model, terms, fit.Why()});
        }
    }
    std::stable_sort(
        ranking.fits.begin(), ranking.fits.end(),
        [](const HyperelasticFit& a, const HyperelasticFit& b) { return Ranked(a) < Ranked(b); });
    return ranking;
}

}  // namespace zelmat::mechanics
