// The peer's side of bench_documents: a big edit and its undo, and one small command in a document of any
// size.

#include <benchmark/benchmark.h>

#include <TColStd_HArray1OfReal.hxx>
#include <TDataStd_Integer.hxx>
#include <TDataStd_Real.hxx>
#include <vector>

#include "bench/peer/PeerTree.h"

namespace {

/// 10,000 scalars and 1,000 tables of three columns and ten rows, all changed in one command.
class BigEdit {
public:
    BigEdit() {
        for (int i = 0; i < 2500; ++i) scalars_.push_back(peer::NewScalars(document_));
        for (int i = 0; i < 1000; ++i) tables_.push_back(document_.NewFeature());
        Make();
        document_.ForgetSteps();
    }

    void Make() {
        next_ += 1.0;
        document_.Step([&] {
            for (const TDF_Label& feature : scalars_) {
                for (std::size_t i = 0; i < 4; ++i) TDataStd_Real::Set(feature, scalarKeys_[i], next_);
            }
            for (const TDF_Label& feature : tables_) {
                for (const Standard_GUID& key : columnKeys_) {
                    Handle(TColStd_HArray1OfReal) column = new TColStd_HArray1OfReal(1, 10);
                    for (int row = 0; row < 10; ++row) column->ChangeValue(row + 1) = next_ + row;
                    peer::WriteColumn(feature, key, column);
                }
            }
        });
    }

    peer::Document& Place() { return document_; }

private:
    peer::Document document_;
    double next_ = 0.0;
    std::vector<TDF_Label> scalars_;
    std::vector<TDF_Label> tables_;
    peer::ScalarKeys scalarKeys_ = peer::SixKeys();
    peer::ColumnKeys columnKeys_ = peer::ThreeKeys();
};

void PeerEdit(benchmark::State& state) {
    BigEdit edit;
    for (auto _ : state) {
        edit.Make();
        state.PauseTiming();
        edit.Place().ForgetSteps();
        state.ResumeTiming();
    }
}
BENCHMARK(PeerEdit);

void PeerUndo(benchmark::State& state) {
    BigEdit edit;
    edit.Make();
    for (auto _ : state) {
        edit.Place().Undo();
        state.PauseTiming();
        edit.Place().Redo();
        state.ResumeTiming();
    }
}
BENCHMARK(PeerUndo);

/// One flag of always the same tree changes in each command.
void PeerOneScalarStep(benchmark::State& state) {
    constexpr int kSteps = 100;
    peer::Document document;
    std::vector<TDF_Label> roots;
    roots.reserve(static_cast<std::size_t>(state.range(0)));
    for (int i = 0; i < state.range(0); ++i) roots.push_back(peer::GrowTree(document, 1.0));
    const Standard_GUID flag = peer::RootFlag(0);
    int value = 1;
    while (state.KeepRunningBatch(kSteps)) {
        for (int i = 0; i < kSteps; ++i) {
            document.Step([&] { TDataStd_Integer::Set(roots[0], flag, value ^= 1); });
        }
        document.ForgetSteps();
    }
}
BENCHMARK(PeerOneScalarStep)->Arg(20)->Arg(2000)->Arg(20000);

}  // namespace
