#include <gmock/gmock.h>

#include "ZELMaterialModel/include/ZELIJohnsonCookData.h"
#include "interfaces/KORIMaterialFeature.h"
#include "interfaces/KORISamUpgrade.h"
#include "tests/ZELMaterialModel/src/ZELTestDataMaterial.h"
#include "tests/support/ZELFakeUnits.h"
#include "tests/support/ZELFaultSweep.h"
#include "tests/support/ZELTestServices.h"

namespace {

constexpr const char* kApplicativeName = "ZELMaterialApplicative";

/// A material in the old container on which there is everything to do: no user material, Johnson-Cook data
/// and the model under their old attributes, coefficients of an enabled behavior in other units.
struct OldMaterial {
    explicit OldMaterial(ZELMapStore& store) : data(store, store.AddContainer("VRBMatAppliCont")) {
        const auto container = store.AddContainer("VRBMatAppliCont");
        Attach(data.material, "ZELUserMaterial", nullptr);
        Attach(data.material, "ZELPlastic", plastic = store.MakeIn(container, "ZELPlasticLT"));
        const auto johnsonCook = store.MakeIn(container, "ZELPlasticJohnsonCookLT");
        SetNumber(johnsonCook, "CoeffA", 350e6);
        Attach(plastic, "JohnsonCookData", johnsonCook);
        data.SwitchOn(true);
        SetText(data.hyperelasticity, "HyperelasticMatModelType", "NEO_HOOKE");
        SetFlag(data.hyperelasticity, "HyperelasticUnitUpgradeRequired", false);
        data.AddTestData(store, container, {1.0, 8.0, 293.0});
        Attach(data.hyperelasticity, "HyperelasticModel", data.model);
        Attach(data.hyperelasticity, "HyperelasticModel_v2", nullptr);

        const ZELUnrecorded unrecorded;
        platformMaterial = store.MakePlatformMaterial(store.Container());
        EXPECT_EQ(platformMaterial->SetApplicativeFeature(kApplicativeName, data.material.Get()), S_OK);
        // The Johnson-Cook keys are kept for good by whoever comes first; let that be here.
        const ZELIJohnsonCookData_var parameters = johnsonCook;
        double ignored = 0.0;
        parameters->GetCoeffA(ignored);
        parameters->GetCoeffB(ignored);
        parameters->GetCoeffN(ignored);
        parameters->GetCoeffM(ignored);
        parameters->GetMeltingTemperature(ignored);
        parameters->GetTransitionTemperature(ignored);
    }

    /// What hangs on the platform's material now, or else what hung there before.
    KORISpecObject_var Current() {
        const ZELUnrecorded unrecorded;
        const auto hanging =
            KORISpecObject_var::Adopt(platformMaterial->GetApplicativeFeature(kApplicativeName));
        return hanging ? hanging : data.material;
    }

    ZELTestDataMaterial data;
    KORISpecObject_var plastic;
    KORIMaterialFeature_var platformMaterial;
};

HRESULT RunUpgrade(const KORISpecObject_var& material) {
    const KORISamUpgrade_var upgrade = material;
    if (!upgrade || !upgrade->IsUpgradeNeeded()) return S_OK;
    return upgrade->Upgrade();
}

/// The coefficients of a material's model, under whichever attribute it is; none without a model.
ZELRows Coefficients(const KORISpecObject_var& material) {
    const auto hyperelasticity = Component(material, "ZELHyperelasticity");
    const auto current = Component(hyperelasticity, "HyperelasticModel_v2");
    const auto model = current ? current : Component(hyperelasticity, "HyperelasticModel");
    return model ? ZELTestDataOf(model) : ZELRows();
}

class ZELUpgradeFaults : public testing::TestWithParam<ZELFault> {};

}  // namespace

TEST_P(ZELUpgradeFaults, NeverScaleTwiceAndLeaveNothingBehindWhicheverCallFails) {
    const int faults = ZELFaultSweep(GetParam(), [](ZELFaultRun& run) {
        ZELTestServices services;
        const ZELFakeUnits units(services.Table(), 4.0);
        OldMaterial old(run.store);
        const long keys = run.store.KeyReferences();
        HRESULT status = S_OK;

        run.Act([&] { status = RunUpgrade(old.data.material); });

        EXPECT_EQ(run.store.KeyReferences(), keys);
        EXPECT_EQ(KORModule::Of("ZELMaterialModel").LiveObjects(), 0);
        EXPECT_EQ(units.References(), 1);
        if (!run.FaultHit()) {
            EXPECT_EQ(status, S_OK);
            EXPECT_EQ(Coefficients(old.Current()), (ZELRows{{4.0, 2.0, 293.0}}));
            EXPECT_EQ(ZELContainerOf(old.Current()), KORBaseUnknown_var(run.store.Container()));
        }
        // The old model is taken off just before the new one is stored; nothing else loses it.
        const auto hyperelasticity = old.data.hyperelasticity;
        EXPECT_EQ(!Component(hyperelasticity, "HyperelasticModel") &&
                      !Component(hyperelasticity, "HyperelasticModel_v2"),
                  run.FailedCall().starts_with("SetComponent MRVHyperelasticityLT.HyperelasticModel_v2"));
        const bool johnsonCookMoved = !Component(old.plastic, "JohnsonCookData");
        if (johnsonCookMoved) {
            EXPECT_TRUE(Component(old.plastic, "JohnsonCookData_v2")) << "never in neither place";
        }

        // Opened again, without faults.
        RunUpgrade(old.Current());
        RunUpgrade(old.Current());
        const ZELRows rows = Coefficients(old.Current());
        EXPECT_TRUE(rows == (ZELRows{{4.0, 2.0, 293.0}}) || rows == (ZELRows{{1.0, 8.0, 293.0}}) ||
                    rows.empty())
            << testing::PrintToString(rows);
    });
    EXPECT_GT(faults, 80);
}

TEST_P(ZELUpgradeFaults, LeaveWhatWasDoneAndNothingElseOnTheOldestMaterial) {
    ZELFaultSweep(GetParam(), [](ZELFaultRun& run) {
        const auto material = run.store.Make("ZELMaterialLT");
        const long references = References(material);
        const long keys = run.store.KeyReferences();
        HRESULT status = S_OK;

        run.Act([&] { status = RunUpgrade(material); });

        EXPECT_EQ(References(material), references);
        EXPECT_EQ(run.store.KeyReferences(), keys);
        EXPECT_EQ(KORModule::Of("ZELMaterialModel").LiveObjects(), 0);
        if (!run.FaultHit()) {
            EXPECT_EQ(status, S_OK);
        }
        const auto hyperelasticity = Component(material, "ZELHyperelasticity");
        if (!run.FaultHit()) {
            EXPECT_TRUE(GetFlag(hyperelasticity, "HyperelasticUnitUpgradeRequired"));
            EXPECT_TRUE(Component(hyperelasticity, "HyperelasticModel_v2"));
        }
        EXPECT_EQ(RunUpgrade(material), S_OK) << "the next run goes on from what is stored";
        EXPECT_TRUE(Component(material, "ZELUserMaterial"));
        EXPECT_TRUE(GetFlag(Component(material, "ZELHyperelasticity"), "HyperelasticUnitUpgradeRequired"));
    });
}

TEST_P(ZELUpgradeFaults, KeepTestDataListedOnceWhicheverCallOfFetchingThemFails) {
    ZELFaultSweep(GetParam(), [](ZELFaultRun& run) {
        ZELTestDataMaterial data(run.store, run.store.Container());
        data.SwitchOn(true);
        data.AddTestData(run.store, run.store.AddContainer("TestData"), {1.0});
        data.AddTestData(run.store, run.store.AddContainer("TestData"), {2.0});
        const long model = References(data.model);
        const long keys = run.store.KeyReferences();

        run.Act([&] { RunUpgrade(data.material); });

        const ZELRows rows = ZELTestDataOf(data.model);
        // Behind a throwing store, and a flag that cannot be read, the list may be shorter; never longer.
        EXPECT_LE(rows.size(), 2u);
        if (!run.FaultHit()) {
            EXPECT_EQ(rows, (ZELRows{{1.0}, {2.0}}));
        }
        EXPECT_EQ(References(data.model), model);
        EXPECT_EQ(run.store.KeyReferences(), keys);
    });
}

static std::string NameOf(const testing::TestParamInfo<ZELFault>& fault) {
    const char* names[] = {"Refuse", "SuccessWithNull", "Throw"};
    return names[static_cast<int>(fault.param)];
}

INSTANTIATE_TEST_SUITE_P(, ZELUpgradeFaults,
                         testing::Values(ZELFault::Refuse, ZELFault::SuccessWithNull, ZELFault::Throw),
                         NameOf);
