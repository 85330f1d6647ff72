// What does a material cost: made by the factory, and where its time goes; in a document of any size; brought
// up to the current release; copied?

#include <benchmark/benchmark.h>

#include <memory>
#include <optional>
#include <vector>

#include "ZELMaterialModel/include/ZELGasketMembraneElasticBehavior.h"
#include "ZELMaterialModel/include/ZELGasketThicknessBehavior.h"
#include "ZELMaterialModel/include/ZELGasketTransverseShearElasticBehavior.h"
#include "ZELMaterialModel/include/ZELHyperelastic.h"
#include "ZELMaterialModel/include/ZELIHyperelasticMaterialModel.h"
#include "ZELMaterialModel/include/ZELIMaterial.h"
#include "ZELMaterialModel/include/ZELIMaterialPropertiesFact.h"
#include "bench/Ground.h"
#include "bench/Memory.h"
#include "bench/Ratios.h"
#include "bench/StoreTree.h"
#include "framework/KORInstantiateComponent.h"
#include "interfaces/KORICutAndPastable.h"
#include "interfaces/KORISamUpgrade.h"
#include "platform/document/KORUpgradeRun.h"
#include "platform/store/KORStep.h"

namespace {

using bench::Figure;
using bench::Ground;
using bench::Target;

constexpr int kBatch = 500;  ///< materials made in one document before the next one is begun

/// The module's factory, and a material of the platform to make analysis data for.
class Factory {
public:
    explicit Factory(Ground& ground)
        : material_(KORISpecObject_var(ground.Document().NewPlatformFeature("KORMaterialLT", "Steel"))) {
        static_cast<void>(KORInstantiate("ZELMaterialPropertiesFact", factory_));  // null: Make says it
    }

    /// False when it fails.
    bool Make() {
        if (!factory_) return false;
        KORIMaterialFeature* material = material_.Get();
        KORISpecObject* created = nullptr;
        const HRESULT status = factory_->CreateZELMaterialProperty(material, created);
        if (created) created->Release();
        return SUCCEEDED(status);
    }

private:
    KORIMaterialFeature_var material_;
    ZELIMaterialPropertiesFact_var factory_;
};

/// Runs `work` for each of a batch of things that `prepare` makes outside the measurement; each in a step of
/// its own, in a document that is new for the batch.
template <class Prepare, class Work>
void InSteps(benchmark::State& state, Prepare prepare, Work work) {
    std::optional<Ground> ground;
    while (state.KeepRunningBatch(kBatch)) {
        state.PauseTiming();
        ground.emplace();
        {
            auto things = prepare(*ground);
            state.ResumeTiming();
            for (auto& thing : things) {
                KORStep step(ground->Document(), "Work");
                work(*ground, thing);
                step.Commit();
            }
            state.PauseTiming();
        }
        ground.reset();
        state.ResumeTiming();
    }
}

template <class Make>
auto BatchOf(Make make) {
    return [make](Ground& ground) {
        std::vector<decltype(make(ground))> things;
        things.reserve(kBatch);
        for (int i = 0; i < kBatch; ++i) things.push_back(make(ground));
        return things;
    };
}

void FactoryMaterial(benchmark::State& state) {
    InSteps(
        state,
        [](Ground& ground) {
            return std::vector<std::shared_ptr<Factory>>(kBatch, std::make_shared<Factory>(ground));
        },
        [&](Ground&, const std::shared_ptr<Factory>& factory) {
            if (!factory->Make()) state.SkipWithError("the factory failed");
        });
}
BENCHMARK(FactoryMaterial);

/// Its fourteen features and their references, made from start-ups as the factory does.
void FactoryTree(benchmark::State& state) {
    InSteps(
        state, [](Ground&) { return std::vector<int>(kBatch); },
        [](Ground& ground, int) { ground.NewFactoryTree(); });
}
BENCHMARK(FactoryTree);

/// The bare tree at the store, layouts and keys in hand.
void StoreTree(benchmark::State& state) {
    const bench::StoreTree tree;
    InSteps(
        state, [](Ground&) { return std::vector<int>(kBatch); },
        [&](Ground& ground, int) { tree.Grow(ground.Document(), ground.Container(), 1.0); });
}
BENCHMARK(StoreTree);

/// The first query on a material: extension, behaviors, and the question whether there is anything to
/// upgrade.
void FirstQueryCurrent(benchmark::State& state) {
    InSteps(state, BatchOf([](Ground& ground) { return ground.NewCurrentMaterial(); }),
            [](Ground&, const KORISpecObject_var& material) {
                benchmark::DoNotOptimize(ZELIMaterial_var(material).Get());
            });
}
BENCHMARK(FirstQueryCurrent);

/// The same on the factory's tree, which has no hyperelasticity yet: the upgrade adds it.
void FirstQueryNew(benchmark::State& state) {
    InSteps(state, BatchOf([](Ground& ground) { return ground.NewFactoryTree(); }),
            [](Ground&, const KORISpecObject_var& material) {
                benchmark::DoNotOptimize(ZELIMaterial_var(material).Get());
            });
}
BENCHMARK(FirstQueryNew);

void GasketValues(benchmark::State& state) {
    InSteps(state, BatchOf([](Ground& ground) { return ZELIMaterial_var(ground.NewCurrentMaterial()); }),
            [](Ground&, const ZELIMaterial_var& material) {
                ZELGenHeapObjectProxy<ZELGasketThicknessBehavior> thickness;
                material->GetGasketThicknessBehaviorProperties(thickness);
                thickness->SetGasketThicknessBehaviorType(ZELGasketThicknessBehavior::InitialThicknessType);
                thickness->SetGasketYieldOnsetMethodType(ZELGasketThicknessBehavior::InitialYieldOnsetMethod);
                thickness->SetGasketYieldOnsetMethodRelativeValue(0.1);
                thickness->SetGasketYieldOnsetMethodClosureValue(0.0001);
                thickness->SetGasketTensileStiffnessFactor(0.001);
                thickness->SetGasketThicknessUnLoadingFlag(0);
                thickness->SetGasketLoadingTemperatureDependentFlag(0);
                thickness->SetGasketUnLoadingEPTemperatureDependentFlag(0);
                thickness->SetGasketUnLoadingDamageTemperatureDependentFlag(0);
                ZELGenHeapObjectProxy<ZELGasketMembraneElasticBehavior> membrane;
                material->GetGasketMembraneElasticProperties(membrane);
                membrane->SetGasketMembraneElasticTempDepFlag(0);
                membrane->SetGasketMembraneElasticFlag(0);
                ZELGenHeapObjectProxy<ZELGasketTransverseShearElasticBehavior> shear;
                material->GetGasketTransShearElasticProperties(shear);
                shear->SetGasketTransverseShearElasticTempDepFlag(0);
                shear->SetGasketTransverseShearElasticFlag(0);
            });
}
BENCHMARK(GasketValues);

/// So many materials in one document, each made in a step.
void Materials(benchmark::State& state) {
    const auto count = static_cast<int>(state.range(0));
    double bytes = 0.0;
    double undoBytes = 0.0;
    while (state.KeepRunningBatch(count)) {
        state.PauseTiming();
        bench::DropUnusedHeap();
        auto ground = std::make_unique<Ground>();
        Factory factory(*ground);
        const double before = bench::HeapBytes();
        state.ResumeTiming();
        for (int i = 0; i < count; ++i) {
            KORStep step(ground->Document(), "Create");
            if (!factory.Make()) state.SkipWithError("the factory failed");
            step.Commit();
        }
        state.PauseTiming();
        const double made = bench::HeapBytes();
        ground->ForgetSteps();
        bytes = (bench::HeapBytes() - before) / count;
        undoBytes = (made - before) / count - bytes;
        ground = nullptr;
        state.ResumeTiming();
    }
    state.counters["bytes"] = bytes;
    state.counters["undo_bytes"] = undoBytes;
}
BENCHMARK(Materials)->Arg(1000)->Arg(10000);
BENCHMARK(Materials)->Arg(100000)->Iterations(100000);

/// A material as the second release stored it: no gaskets, Johnson-Cook data and hyperelastic model under
/// their old keys, coefficients not in the current unit.
KORISpecObject_var NewOlderMaterial(Ground& ground) {
    auto material = ground.New("ZELMaterialLT");
    constexpr const char* kBehaviors[][2] = {{"ZELElastic", "ZELElasticLT"},
                                             {"ZELDensity", "ZELDensityLT"},
                                             {"ZELThermalExpansion", "ZELThermalExpansionLT"},
                                             {"ZELConductivity", "ZELConductivityLT"},
                                             {"ZELSpecificHeat", "ZELSpecificHeatLT"}};
    for (const auto& [attribute, lateType] : kBehaviors) ground.NewUnder(material.Get(), attribute, lateType);
    const auto plastic = ground.NewUnder(material.Get(), "ZELPlastic", "ZELPlasticLT");
    ground.NewUnder(plastic.Get(), "JohnsonCookData", "ZELPlasticJohnsonCookLT");
    const auto hyperelasticity =
        ground.NewUnder(material.Get(), "ZELHyperelasticity", "MRVHyperelasticityLT");
    const ZELIHyperelasticMaterialModel_var model(
        ground.NewUnder(hyperelasticity.Get(), "HyperelasticModel", "ZELHyperelasticMaterialModelLT"));
    constexpr double kYeoh[] = {0.5, -0.01, 0.001, 0.02, 0.0, 0.0};
    const ZELCftArraydouble row(6, kYeoh);
    model->SetPropertyData(ZELCftArrayZELCftArrayDouble(1, &row));
    ZELHyperelastic behavior(material.Get());
    behavior.SetHyperelasticEnabled(1);
    behavior.SetMaterialModelType("YEOH");
    return material;
}

/// So many older materials, brought up to date in one step as when their document is opened.
template <class Run>
void UpgradeAll(benchmark::State& state, Run run) {
    const auto count = static_cast<int>(state.range(0));
    double entries = 0.0;
    double undoBytes = 0.0;
    while (state.KeepRunningBatch(count)) {
        state.PauseTiming();
        bench::DropUnusedHeap();
        auto ground = std::make_unique<Ground>();
        {
            std::vector<KORISpecObject_var> materials;
            materials.reserve(static_cast<std::size_t>(count));
            for (int i = 0; i < count; ++i) materials.push_back(NewOlderMaterial(*ground));
            state.ResumeTiming();
            if (!run(ground->Document(), materials)) state.SkipWithError("a material was not upgraded");
            state.PauseTiming();
        }
        entries = static_cast<double>(ground->Document().Log().Steps().back().entries.size()) / count;
        const double withUndo = bench::HeapBytes();
        ground->ForgetSteps();
        undoBytes = (withUndo - bench::HeapBytes()) / count;
        ground = nullptr;
        state.ResumeTiming();
    }
    state.counters["undo_entries"] = entries;
    state.counters["undo_bytes"] = undoBytes;
}

/// The module's part: question and upgrade.
void Upgrade(benchmark::State& state) {
    UpgradeAll(state, [](KORMemoryDocument& document, const std::vector<KORISpecObject_var>& materials) {
        KORStep step(document, "Upgrade");
        for (const auto& material : materials) {
            const KORISamUpgrade_var upgrade(material);
            if (!upgrade->IsUpgradeNeeded() || FAILED(upgrade->Upgrade())) return false;
        }
        step.Commit();
        return true;
    });
}
BENCHMARK(Upgrade)->Arg(1000)->Arg(2000)->Arg(5000)->Arg(10000);

/// The host's run over the document, with its report of what changed where.
void UpgradeRun(benchmark::State& state) {
    UpgradeAll(state, [](KORMemoryDocument& document, const std::vector<KORISpecObject_var>& materials) {
        const KORUpgradeReport report = KORRunUpgrade(document, "ZELMaterialLT", "ZELMaterialApplicative");
        return report.upgraded.size() == materials.size();
    });
}
BENCHMARK(UpgradeRun)->Arg(1000)->Arg(2000)->Arg(5000)->Arg(10000);

/// A copy beside the original, taken along by its root.
void Copy(Ground& ground, const KORISpecObject_var& root) {
    const auto container = KORICutAndPastable_var::Of(&ground.Container());
    KORListValKORISpecObject_var wanted;
    KORListValKORISpecObject_var extracted;
    KORListValKORISpecObject_var copies;
    wanted.Append(root);
    if (FAILED(container->Extract(wanted, extracted)) || FAILED(container->Paste(extracted, copies))) return;
    benchmark::DoNotOptimize(copies.Size());
}

void CopyStoreTree(benchmark::State& state) {
    const bench::StoreTree tree;
    InSteps(state, BatchOf([&](Ground& ground) {
                return KORISpecObject_var(tree.Grow(ground.Document(), ground.Container(), 1.0).Get());
            }),
            Copy);
}
BENCHMARK(CopyStoreTree);

void CopyMaterial(benchmark::State& state) {
    InSteps(state, BatchOf([](Ground& ground) { return ground.NewCurrentMaterial(); }), Copy);
}
BENCHMARK(CopyMaterial);

const bench::Ratio kRatios[] = {
    {"factory, with upgrade and gasket values", Figure::Time("FactoryMaterial"), Figure::Time("PeerGrowTree"),
     Target::AtLeast(5)},
    {"  of which the tree of 14 features", Figure::Time("FactoryTree"), Figure::Time("FactoryMaterial"),
     Target::None()},
    {"    beside it: 15 bare features at the store", Figure::Time("StoreTree"),
     Figure::Time("FactoryMaterial"), Target::None()},
    {"  extension and behaviors", Figure::Time("FirstQueryCurrent"), Figure::Time("FactoryMaterial"),
     Target::None()},
    {"  the same with the upgrade of a new material", Figure::Time("FirstQueryNew"),
     Figure::Time("FactoryMaterial"), Target::None()},
    {"  gasket values", Figure::Time("GasketValues"), Figure::Time("FactoryMaterial"), Target::None()},
    {"memory of a material of 16 features", Figure::Counter("Materials/10000", "bytes", "B"),
     Figure::Bound(4000, "B"), Target::AtMost(1)},
    {"  in a document of 100,000", Figure::Counter("Materials/100000/iterations:100000", "bytes", "B"),
     Figure::Counter("Materials/1000", "bytes", "B"), Target::AtMost(1.05)},
    {"time of a material, 10,000 in a document", Figure::Time("Materials/10000"),
     Figure::Time("Materials/1000"), Target::AtMost(1.5)},
    {"  100,000 in a document", Figure::Time("Materials/100000/iterations:100000"),
     Figure::Time("Materials/1000"), Target::AtMost(1.5)},
    {"upgrade of a material, 2,000 in a document", Figure::Time("Upgrade/2000"), Figure::Time("Upgrade/1000"),
     Target::AtMost(1.5)},
    {"  5,000 in a document", Figure::Time("Upgrade/5000"), Figure::Time("Upgrade/1000"),
     Target::AtMost(1.5)},
    {"  10,000 in a document", Figure::Time("Upgrade/10000"), Figure::Time("Upgrade/1000"),
     Target::AtMost(1.5)},
    {"  its undo memory a material, 10,000", Figure::Counter("Upgrade/10000", "undo_bytes", "B"),
     Figure::Counter("Upgrade/1000", "undo_bytes", "B"), Target::AtMost(1.05)},
    {"the same with the host's report, 2,000", Figure::Time("UpgradeRun/2000"),
     Figure::Time("UpgradeRun/1000"), Target::AtMost(1.5)},
    {"  5,000 in a document", Figure::Time("UpgradeRun/5000"), Figure::Time("UpgradeRun/1000"),
     Target::AtMost(1.5)},
    {"  10,000 in a document", Figure::Time("UpgradeRun/10000"), Figure::Time("UpgradeRun/1000"),
     Target::AtMost(1.5)},
    {"  beside the upgrade itself, 10,000", Figure::Time("UpgradeRun/10000"), Figure::Time("Upgrade/10000"),
     Target::None()},
    {"copy of a tree of 15 features", Figure::Time("CopyStoreTree"), Figure::Time("PeerCopyTree"),
     Target::AtLeast(20)},
    {"copy of a material of 16 features", Figure::Time("CopyMaterial"), Figure::Time("PeerCopyTree"),
     Target::Faster()},
};

}  // namespace

int main(int argc, char** argv) {
    return bench::RunWithRatios(argc, argv, kRatios);
}
