// Trees of fifteen labels, each grown or copied in a command of its own, and the memory they take.

#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

#include "bench/Memory.h"
#include "bench/peer/PeerTree.h"

namespace {

void PeerGrowTree(benchmark::State& state) {
    constexpr int kTrees = 1000;
    double bytes = 0.0;
    double bytesToUndo = 0.0;
    auto document = std::make_unique<peer::Document>();
    while (state.KeepRunningBatch(kTrees)) {
        state.PauseTiming();
        document = std::make_unique<peer::Document>();
        const double before = bench::HeapBytes();
        state.ResumeTiming();
        for (int i = 0; i < kTrees; ++i) {
            document->Step([&] { peer::GrowTree(*document, 1.0); });
        }
        state.PauseTiming();
        const double grown = bench::HeapBytes();
        document->ForgetSteps();
        bytes = (bench::HeapBytes() - before) / kTrees;
        bytesToUndo = (grown - before) / kTrees - bytes;
        state.ResumeTiming();
    }
    state.counters["bytes"] = bytes;
    state.counters["undo_bytes"] = bytesToUndo;
}
BENCHMARK(PeerGrowTree);

void PeerCopyTree(benchmark::State& state) {
    constexpr int kTrees = 500;
    while (state.KeepRunningBatch(kTrees)) {
        state.PauseTiming();
        {
            peer::Document document;
            std::vector<TDF_Label> roots;
            roots.reserve(kTrees);
            for (int i = 0; i < kTrees; ++i) roots.push_back(peer::GrowTree(document, 1.0));
            state.ResumeTiming();
            for (const TDF_Label& root : roots) {
                document.Step([&] { peer::CopyTree(document, root); });
            }
            state.PauseTiming();
        }
        state.ResumeTiming();
    }
}
BENCHMARK(PeerCopyTree);

}  // namespace
