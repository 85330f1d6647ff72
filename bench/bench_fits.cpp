// What does a fit cost? Potentials of order 3 to Treloar's three tests, 53 points, and the ranking of all of
// them.

#include <benchmark/benchmark.h>

#include "bench/Ratios.h"
#include "zelmat/cards/ReadCard.h"
#include "zelmat/mechanics/fit/FitRanking.h"
#include "zelmat/properties/TestCurves.h"

namespace {

using bench::Figure;
using bench::Target;
using zelmat::mechanics::DeviationMeasure;
using zelmat::mechanics::HyperelasticModel;
using zelmat::mechanics::TestCurve;

const std::vector<TestCurve>& Tests() {
    static const std::vector<TestCurve> tests = [] {
        zelmat::Findings findings;
        return zelmat::TestCurvesOf(*zelmat::ReadCard(ZEL_SAMPLES "/natural_rubber_treloar.json", findings));
    }();
    return tests;
}

void Fit(benchmark::State& state, HyperelasticModel model, int order) {
    for (auto _ : state) {
        const auto fit =
            zelmat::mechanics::FitHyperelastic(model, order, Tests(), DeviationMeasure::RELATIVE);
        if (!fit.Ok()) state.SkipWithError("the fit was refused");
        benchmark::DoNotOptimize(fit);
    }
}

void FitYeoh(benchmark::State& state) {
    Fit(state, HyperelasticModel::YEOH, 3);
}
void FitVanDerWaals(benchmark::State& state) {
    Fit(state, HyperelasticModel::VAN_DER_WAALS, 1);
}
void FitOgden3(benchmark::State& state) {
    Fit(state, HyperelasticModel::OGDEN, 3);
}
void FitPolynomial3(benchmark::State& state) {
    Fit(state, HyperelasticModel::POLYNOMIAL, 3);
}
void RankAllModels(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(zelmat::mechanics::FitAllModels(Tests(), DeviationMeasure::RELATIVE));
    }
}

BENCHMARK(FitYeoh)->Unit(benchmark::kMillisecond);
BENCHMARK(FitVanDerWaals)->Unit(benchmark::kMillisecond);
BENCHMARK(FitOgden3)->Unit(benchmark::kMillisecond);
BENCHMARK(FitPolynomial3)->Unit(benchmark::kMillisecond);
BENCHMARK(RankAllModels)->Unit(benchmark::kMillisecond);

constexpr double kSecond = 1e9;  // ns

const bench::Ratio kRatios[] = {
    {"OGDEN of order 3 fitted to three tests, to a second", Figure::Time("FitOgden3"),
     Figure::Bound(kSecond, "ns"), Target::AtMost(1)},
    {"POLYNOMIAL of order 3, to a second", Figure::Time("FitPolynomial3"), Figure::Bound(kSecond, "ns"),
     Target::AtMost(1)},
    {"VAN_DER_WAALS, to a second", Figure::Time("FitVanDerWaals"), Figure::Bound(kSecond, "ns"),
     Target::AtMost(1)},
    {"all models ranked, to one fit of OGDEN 3", Figure::Time("RankAllModels"), Figure::Time("FitOgden3"),
     Target::None()},
};

}  // namespace

int main(int argc, char** argv) {
    return bench::RunWithRatios(argc, argv, kRatios);
}
