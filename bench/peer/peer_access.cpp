// The peer's side of bench_access: a scalar read and written, label and GUID in hand.

#include <benchmark/benchmark.h>

#include <TDataStd_Real.hxx>
#include <iterator>
#include <vector>

#include "bench/peer/PeerDocument.h"

namespace {

void PeerReadScalar(benchmark::State& state) {
    const peer::Document document;
    const TDF_Label feature = peer::NewScalars(document);
    const auto keys = peer::SixKeys();
    std::size_t next = 0;
    for (auto _ : state) {
        Handle(TDataStd_Real) attribute;
        feature.FindAttribute(keys[next], attribute);
        benchmark::DoNotOptimize(attribute->Get());
        next = next == 5 ? 0 : next + 1;
    }
}
BENCHMARK(PeerReadScalar);

void PeerWriteScalarInStep(benchmark::State& state) {
    constexpr int kFeatures = 1000;
    peer::Document document;
    const auto keys = peer::SixKeys();
    std::vector<TDF_Label> features;
    features.reserve(kFeatures);
    for (int i = 0; i < kFeatures; ++i) features.push_back(peer::NewScalars(document));
    double value = 1.0;
    while (state.KeepRunningBatch(kFeatures * std::ssize(keys))) {
        document.Step([&] {
            for (const TDF_Label& feature : features) {
                for (const Standard_GUID& key : keys) TDataStd_Real::Set(feature, key, value);
            }
        });
        value += 1.0;
        state.PauseTiming();
        document.ForgetSteps();
        state.ResumeTiming();
    }
}
BENCHMARK(PeerWriteScalarInStep);

}  // namespace
