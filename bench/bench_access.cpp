// What does one access cost: a scalar read and written by key, an interface asked for? Beside them a virtual
// call and dynamic_cast on the same object.

#include <benchmark/benchmark.h>

#include <iterator>
#include <vector>

#include "ZELMaterialModel/include/ZELIJohnsonCookData.h"
#include "ZELMaterialModel/include/ZELIMaterial.h"
#include "bench/AllocationCount.h"
#include "bench/Ground.h"
#include "bench/Ratios.h"
#include "interfaces/KORIAlias.h"
#include "interfaces/KORISamValidity.h"
#include "platform/store/KORStep.h"

namespace {

using bench::Figure;
using bench::Ground;
using bench::Target;

constexpr const char* kScalarType = "ZELPlasticJohnsonCookLT";

/// The keys of its six numbers.
std::vector<KORISpecAttrKey*> ScalarKeys() {
    std::vector<KORISpecAttrKey*> keys;
    for (const char* name :
         {"CoeffA", "CoeffB", "CoeffN", "CoeffM", "MeltingTemperature", "TransitionTemperature"}) {
        keys.push_back(KORName::Intern(name));
    }
    return keys;
}

void ReadScalar(benchmark::State& state) {
    Ground ground;
    const KORISpecAttrAccess_var access(ground.New(kScalarType));
    const auto keys = ScalarKeys();
    std::size_t next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(access->GetDouble(keys[next], 0));
        next = next == 5 ? 0 : next + 1;
    }
}
BENCHMARK(ReadScalar);

/// Each write is the first to its slot in the step: it is logged.
void WriteScalarInStep(benchmark::State& state) {
    constexpr int kFeatures = 1000;
    Ground ground;
    const auto keys = ScalarKeys();
    std::vector<KORISpecAttrAccess_var> features;
    features.reserve(kFeatures);
    for (int i = 0; i < kFeatures; ++i) features.emplace_back(ground.New(kScalarType));
    double value = 1.0;
    while (state.KeepRunningBatch(kFeatures * std::ssize(keys))) {
        KORStep step(ground.Document(), "Write");
        for (const auto& feature : features) {
            for (KORISpecAttrKey* key : keys) feature->SetDouble(key, value, 0);
        }
        step.Commit();
        value += 1.0;
        state.PauseTiming();
        ground.ForgetSteps();
        state.ResumeTiming();
    }
}
BENCHMARK(WriteScalarInStep);

/// The slot was written in this step before.
void WriteScalarAgain(benchmark::State& state) {
    Ground ground;
    const KORISpecAttrAccess_var access(ground.New(kScalarType));
    KORISpecAttrKey* key = ScalarKeys().front();
    KORStep step(ground.Document(), "Write");
    double value = 1.0;
    for (auto _ : state) {
        access->SetDouble(key, value, 0);
        value += 1.0;
    }
}
BENCHMARK(WriteScalarAgain);

/// Allocations of one iteration.
void CountAllocations(benchmark::State& state, std::uint64_t before) {
    const auto made = static_cast<double>(bench::Allocations() - before);
    state.counters["allocations"] = made / static_cast<double>(state.iterations());
}

/// Asks an object for an interface over and over, and gives each one back.
template <class Interface>
void Ask(benchmark::State& state, const KORISpecObject_var& object) {
    const std::uint64_t before = bench::Allocations();
    for (auto _ : state) {
        void* found = nullptr;
        if (FAILED(object->QueryInterface(Interface::Iid(), &found))) {
            state.SkipWithError("the interface was not found");
            break;
        }
        static_cast<Interface*>(found)->Release();
    }
    CountAllocations(state, before);
}

void QueryOwnInterface(benchmark::State& state) {
    Ground ground;
    Ask<KORISpecAttrAccess>(state, ground.New(kScalarType));
}
BENCHMARK(QueryOwnInterface);

void QueryMiss(benchmark::State& state) {
    Ground ground;
    const auto feature = ground.New(kScalarType);
    for (auto _ : state) {
        void* found = nullptr;
        benchmark::DoNotOptimize(feature->QueryInterface(IID_KORISamValidity, &found));
    }
}
BENCHMARK(QueryMiss);

void QueryAlive(benchmark::State& state) {
    Ground ground;
    const auto material = ground.NewCurrentMaterial();
    const ZELIMaterial_var alive(material);
    Ask<ZELIMaterial>(state, material);
}
BENCHMARK(QueryAlive);

/// Nothing holds the extension: each query builds it anew, and its release ends it.
void QueryFirst(benchmark::State& state) {
    Ground ground;
    Ask<ZELIJohnsonCookData>(state, ground.New(kScalarType));
}
BENCHMARK(QueryFirst);

void QueryFirstMaterial(benchmark::State& state) {
    Ground ground;
    Ask<ZELIMaterial>(state, ground.NewCurrentMaterial());
}
BENCHMARK(QueryFirstMaterial);

template <class Wanted>
void Cast(benchmark::State& state) {
    Ground ground;
    const auto feature = ground.New(kScalarType);
    KORISpecObject* object = feature.Get();
    for (auto _ : state) {
        benchmark::DoNotOptimize(object);
        benchmark::DoNotOptimize(dynamic_cast<Wanted*>(object));
    }
}

void DynamicCastHit(benchmark::State& state) {
    Cast<KORIAlias>(state);
}
BENCHMARK(DynamicCastHit);

void DynamicCastMiss(benchmark::State& state) {
    Cast<KORISamValidity>(state);
}
BENCHMARK(DynamicCastMiss);

/// A class as plain as classes come, for what a miss costs at the least.
struct Plain {
    virtual ~Plain() = default;
};
struct PlainObject final : Plain {};
struct OtherPlainObject final : Plain {
    int number = 0;
};

void DynamicCastMissPlain(benchmark::State& state) {
    PlainObject object;
    Plain* plain = &object;
    for (auto _ : state) {
        benchmark::DoNotOptimize(plain);
        benchmark::DoNotOptimize(dynamic_cast<OtherPlainObject*>(plain));
    }
}
BENCHMARK(DynamicCastMissPlain);

/// A virtual call that does nothing to speak of.
void VirtualCall(benchmark::State& state) {
    Ground ground;
    const auto feature = ground.New(kScalarType);
    KORISpecObject* object = feature.Get();
    for (auto _ : state) {
        std::uint32_t count = 1;
        benchmark::DoNotOptimize(object);
        object->GetTypeInfoCount(&count);
        benchmark::DoNotOptimize(count);
    }
}
BENCHMARK(VirtualCall);

const bench::Ratio kRatios[] = {
    {"scalar read, access and key in hand", Figure::Time("ReadScalar"), Figure::Time("PeerReadScalar"),
     Target::AtLeast(13)},
    {"", Figure::Time("ReadScalar"), Figure::Time("VirtualCall"), Target::None()},
    {"scalar write in a step, access and key in hand", Figure::Time("WriteScalarInStep"),
     Figure::Time("PeerWriteScalarInStep"), Target::AtLeast(15)},
    {"the same slot again in the step", Figure::Time("WriteScalarAgain"),
     Figure::Time("PeerWriteScalarInStep"), Target::Faster()},
    {"interface query, extension alive", Figure::Time("QueryAlive"), Figure::Time("DynamicCastMiss"),
     Target::AtMost(0.5)},
    {"", Figure::Time("QueryAlive"), Figure::Time("DynamicCastMissPlain"), Target::None()},
    {"", Figure::Time("QueryAlive"), Figure::Time("DynamicCastHit"), Target::None()},
    {"", Figure::Time("QueryAlive"), Figure::Time("VirtualCall"), Target::None()},
    {"interface query, the object's own", Figure::Time("QueryOwnInterface"), Figure::Time("DynamicCastHit"),
     Target::None()},
    {"interface query, miss", Figure::Time("QueryMiss"), Figure::Time("DynamicCastMiss"), Target::None()},
    {"first query, stateless extension", Figure::Time("QueryFirst"), Figure::Time("DynamicCastMiss"),
     Target::None()},
    {"first query, material with its behaviors", Figure::Time("QueryFirstMaterial"),
     Figure::Time("QueryFirst"), Target::None()},
};

}  // namespace

int main(int argc, char** argv) {
    return bench::RunWithRatios(argc, argv, kRatios);
}
