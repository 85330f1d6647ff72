// What does a document cost: growing trees in it, the memory they take, an edit and its undo, and one small
// step in a document of any size?

#include <benchmark/benchmark.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "bench/Ground.h"
#include "bench/Memory.h"
#include "bench/Ratios.h"
#include "bench/StoreTree.h"
#include "platform/store/KORStep.h"

namespace {

using bench::Figure;
using bench::Ground;
using bench::StoreTree;
using bench::Target;

/// Trees of fifteen features and sixty-five attributes, each in a step of its own.
void GrowTree(benchmark::State& state) {
    constexpr int kTrees = 1000;
    const StoreTree tree;
    double bytes = 0.0;
    double bytesToUndo = 0.0;
    auto ground = std::make_unique<Ground>();
    while (state.KeepRunningBatch(kTrees)) {
        state.PauseTiming();
        ground = std::make_unique<Ground>();
        const double before = bench::HeapBytes();
        state.ResumeTiming();
        for (int i = 0; i < kTrees; ++i) {
            KORStep step(ground->Document(), "Grow");
            tree.Grow(ground->Document(), ground->Container(), 1.0);
            step.Commit();
        }
        state.PauseTiming();
        const double grown = bench::HeapBytes();
        ground->ForgetSteps();
        bytes = (bench::HeapBytes() - before) / kTrees;
        bytesToUndo = (grown - before) / kTrees - bytes;
        state.ResumeTiming();
    }
    state.counters["bytes"] = bytes;
    state.counters["undo_bytes"] = bytesToUndo;
}
BENCHMARK(GrowTree);

/// 10,000 scalars and 1,000 tables of three columns and ten rows, all changed in one step.
class BigEdit {
public:
    BigEdit() {
        for (int i = 0; i < 2500; ++i) scalars_.emplace_back(ground_.New("ZELPlasticJohnsonCookLT"));
        for (int i = 0; i < 1000; ++i) tables_.emplace_back(ground_.New("ZELElasticLT"));
    }

    /// Every number is another one than last time.
    void Make() {
        next_ += 1.0;
        KORStep step(ground_.Document(), "Edit");
        for (const auto& feature : scalars_) {
            for (KORISpecAttrKey* key : scalarKeys_) feature->SetDouble(key, next_, 0);
        }
        for (const auto& feature : tables_) {
            for (KORISpecAttrKey* key : columnKeys_) {
                KORRawColldouble column;
                column.Reserve(10);
                for (int row = 0; row < 10; ++row) column.Append(next_ + row);
                feature->SetListOfDouble(key, column);
            }
        }
        step.Commit();
    }

    Ground& Place() { return ground_; }

private:
    Ground ground_;
    double next_ = 0.0;
    std::vector<KORISpecAttrAccess_var> scalars_;
    std::vector<KORISpecAttrAccess_var> tables_;
    KORISpecAttrKey* scalarKeys_[4] = {KORName::Intern("CoeffA"), KORName::Intern("CoeffB"),
                                       KORName::Intern("CoeffN"), KORName::Intern("CoeffM")};
    KORISpecAttrKey* columnKeys_[3] = {KORName::Intern("YoungData"), KORName::Intern("PoissonData"),
                                       KORName::Intern("TemperatureData")};
};

void Edit(benchmark::State& state) {
    BigEdit edit;
    for (auto _ : state) {
        edit.Make();
        state.PauseTiming();
        edit.Place().ForgetSteps();
        state.ResumeTiming();
    }
}
BENCHMARK(Edit);

void Undo(benchmark::State& state) {
    BigEdit edit;
    edit.Make();
    KORMemoryDocument& document = edit.Place().Document();
    for (auto _ : state) {
        document.Undo();
        state.PauseTiming();
        document.Redo();
        state.ResumeTiming();
    }
}
BENCHMARK(Undo);

/// A document of so many materials, grown once per program.
struct GrownDocument {
    explicit GrownDocument(int materials) {
        const StoreTree tree;
        for (int i = 0; i < materials; ++i) {
            roots.push_back(tree.Grow(ground.Document(), ground.Container(), 1.0));
        }
    }
    Ground ground;
    std::vector<KORVar<KORFeature>> roots;
};

GrownDocument& DocumentOf(int materials) {
    static std::map<int, std::unique_ptr<GrownDocument>> documents;
    auto& document = documents[materials];
    if (!document) document = std::make_unique<GrownDocument>(materials);
    return *document;
}

/// One flag of one material changes in each step; always the same material's, or each time another's.
void OneScalarSteps(benchmark::State& state, std::size_t stride) {
    constexpr int kSteps = 1000;
    GrownDocument& grown = DocumentOf(static_cast<int>(state.range(0)));
    KORISpecAttrKey* flag = KORName::Intern("BenchFlag0");
    std::size_t next = 0;
    while (state.KeepRunningBatch(kSteps)) {
        for (int i = 0; i < kSteps; ++i) {
            KORFeature& feature = *grown.roots[next];
            next = (next + stride) % grown.roots.size();
            KORStep step(grown.ground.Document(), "Change");
            feature.SetBoolean(flag, !feature.GetBoolean(flag, 0), 0);
            step.Commit();
        }
        grown.ground.ForgetSteps();
    }
}

void OneScalarStep(benchmark::State& state) {
    OneScalarSteps(state, 0);
}
BENCHMARK(OneScalarStep)->Arg(20)->Arg(2000)->Arg(20000);

void OneScalarStepElsewhere(benchmark::State& state) {
    OneScalarSteps(state, 7919);
}
BENCHMARK(OneScalarStepElsewhere)->Arg(20)->Arg(2000)->Arg(20000);

const bench::Ratio kRatios[] = {
    {"tree of 15 features in a step, at the store", Figure::Time("GrowTree"), Figure::Time("PeerGrowTree"),
     Target::AtLeast(15)},
    {"memory of a tree of 15 features, 65 attributes", Figure::Counter("GrowTree", "bytes", "B"),
     Figure::Counter("PeerGrowTree", "bytes", "B"), Target::Faster()},
    {"", Figure::Counter("GrowTree", "bytes", "B"), Figure::Bound(3000, "B"), Target::AtMost(1)},
    {"  what its undo takes beside it", Figure::Counter("GrowTree", "undo_bytes", "B"),
     Figure::Counter("PeerGrowTree", "undo_bytes", "B"), Target::Faster()},
    {"edit of 10,000 scalars and 1,000 tables", Figure::Time("Edit"), Figure::Time("PeerEdit"),
     Target::AtLeast(15)},
    {"its undo", Figure::Time("Undo"), Figure::Time("PeerUndo"), Target::AtLeast(200)},
    {"one-scalar step, 20 materials", Figure::Time("OneScalarStep/20"), Figure::Time("PeerOneScalarStep/20"),
     Target::Faster()},
    {"one-scalar step, 2,000 materials", Figure::Time("OneScalarStep/2000"),
     Figure::Time("PeerOneScalarStep/2000"), Target::Faster()},
    {"  beside 20 materials", Figure::Time("OneScalarStep/2000"), Figure::Time("OneScalarStep/20"),
     Target::AtMost(1.5)},
    {"one-scalar step, 20,000 materials", Figure::Time("OneScalarStep/20000"),
     Figure::Time("PeerOneScalarStep/20000"), Target::Faster()},
    {"  beside 20 materials", Figure::Time("OneScalarStep/20000"), Figure::Time("OneScalarStep/20"),
     Target::AtMost(1.5)},
    {"  each time another of 20,000 (cold caches)", Figure::Time("OneScalarStepElsewhere/20000"),
     Figure::Time("OneScalarStepElsewhere/20"), Target::None()},
};

}  // namespace

int main(int argc, char** argv) {
    return bench::RunWithRatios(argc, argv, kRatios);
}
