#include <gmock/gmock.h>

#include "ZELMaterialModel/include/ZELMaterialPlastic.h"
#include "tests/ZELMaterialModel/ZELMaterialTree.h"
#include "tests/ZELMaterialModel/ZELRows.h"
#include "tests/support/ZELDiagnostics.h"
#include "tests/support/ZELFaultSweep.h"
#include "tests/support/ZELTestAccess.h"
#include "tests/support/ZELTestServices.h"

using testing::ElementsAre;
using testing::Optional;

namespace {

const std::vector<ZELFault> kFaults = {ZELFault::Refuse, ZELFault::SuccessWithNull, ZELFault::Throw};

/// A material with a plastic feature of some hardening type.
struct Hardening {
    Hardening(ZELTestStore& store, const char* type) : tree(store) {
        SetText(tree.plastic, "PlasticHardeningType", type);
    }
    ZELMaterialTree tree;
    ZELTestServices services;
    ZELDiagnostics diagnostics;
};

/// The same, with a curve of one row.
struct Curve : Hardening {
    explicit Curve(ZELTestStore& store) : Hardening(store, "IsotropicHardening") {
        SetList(tree.plastic, "StressData", {1.0});
        SetList(tree.plastic, "StrainData", {0.0});
        SetList(tree.plastic, "TemperatureData", {2.0});
    }
};

bool Hit(const ZELFaultRun& run, const char* call) {
    return run.FailedCall().starts_with(call);
}

}  // namespace

TEST(ZELMaterialPlasticCalls, ReadEnabledTemperatureFlagTableAndDataFileInThatOrder) {
    ZELMapStore store;
    const Curve curve(store);

    const ZELMaterialPlastic plastic(curve.tree.material.Get());

    EXPECT_THAT(
        store.Calls().Log(),
        ElementsAre(
            "QueryInterface ZELMaterialLT KORISpecAttrAccess", "GetSpecObject ZELMaterialLT.ZELPlastic",
            "QueryInterface ZELMaterialLT KORISpecAttrAccess", "GetAttrKey ZELMaterialLT.ZELPlasticFlag",
            "GetBoolean ZELMaterialLT.ZELPlasticFlag", "QueryInterface ZELPlasticLT KORISpecAttrAccess",
            "GetAttrKey ZELPlasticLT.PlasticTemperatureDependent",
            "GetBoolean ZELPlasticLT.PlasticTemperatureDependent",
            "QueryInterface ZELPlasticLT KORISpecAttrAccess",
            "QueryInterface ZELPlasticLT KORISpecAttrAccess", "GetAttrKey ZELPlasticLT.PlasticHardeningType",
            "GetString ZELPlasticLT.PlasticHardeningType", "QueryInterface ZELPlasticLT KORISpecAttrAccess",
            "GetAttrKey ZELPlasticLT.StressData", "GetAttrKey ZELPlasticLT.StrainData",
            "GetAttrKey ZELPlasticLT.TemperatureData", "GetListOfDouble ZELPlasticLT.StressData",
            "GetListOfDouble ZELPlasticLT.StrainData", "GetListOfDouble ZELPlasticLT.TemperatureData",
            "QueryInterface ZELPlasticLT KORISpecAttrAccess", "GetAttrKey ZELPlasticLT.DataFile",
            "GetString ZELPlasticLT.DataFile"));
}

TEST(ZELMaterialPlasticCalls, WriteStressStrainAndTemperatureInThatOrder) {
    ZELMapStore store;
    const Curve curve(store);
    ZELMaterialPlastic plastic(curve.tree.material.Get());
    store.Calls().ClearLog();

    EXPECT_EQ(plastic.SetPlasticDataArray(ZELTableOf({{250.0, 0.5, 20.0}})), E_FAIL);

    EXPECT_THAT(store.Calls().Log("SetListOfDouble"),
                ElementsAre("SetListOfDouble ZELPlasticLT.StressData [250]",
                            "SetListOfDouble ZELPlasticLT.StrainData [0.5]",
                            "SetListOfDouble ZELPlasticLT.TemperatureData [20]"))
        << "all three before the strain is looked at";
}

TEST(ZELMaterialPlasticCalls, ResolveTheJohnsonCookKeyOnceAndWriteTheParametersInOrder) {
    ZELMapStore store;
    const Hardening hardening(store, "JohnsonCookHardening");
    ZELMaterialPlastic plastic(hardening.tree.material.Get());
    plastic.GetPlasticDataArray();
    EXPECT_THAT(store.Calls().Log("GetComponent"),
                ElementsAre("GetComponent ZELPlasticLT.JohnsonCookData_v2",
                            "GetComponent ZELPlasticLT.JohnsonCookData_v2"));
    EXPECT_THAT(store.Calls().Log("GetAttrKey"),
                testing::Contains("GetAttrKey ZELPlasticLT.JohnsonCookData_v2").Times(1));
    store.Calls().ClearLog();

    plastic.SetPlasticDataArray(ZELTableOf({{1.0, 2.0, 3.0, 4.0, 5.0, 6.0}}));

    EXPECT_THAT(store.Calls().Log("SetDouble"),
                ElementsAre("SetDouble ZELPlasticJohnsonCookLT.CoeffA 1",
                            "SetDouble ZELPlasticJohnsonCookLT.CoeffB 2",
                            "SetDouble ZELPlasticJohnsonCookLT.CoeffN 3",
                            "SetDouble ZELPlasticJohnsonCookLT.CoeffM 4",
                            "SetDouble ZELPlasticJohnsonCookLT.MeltingTemperature 5",
                            "SetDouble ZELPlasticJohnsonCookLT.TransitionTemperature 6"));
}

TEST(ZELMaterialPlasticCalls, CreateTheJohnsonCookFeatureFromTheCatalogWithoutAName) {
    ZELMapStore store;
    const Hardening hardening(store, "");

    const auto created = KORISpecObject_var::Adopt(
        ZELMaterialPlastic::CreateJohnsonCookDataObject(hardening.tree.plastic.Get()));

    EXPECT_THAT(store.Calls().Log("OpenCatalog"),
                ElementsAre("OpenCatalog ZELMaterialPropertiesCatalog.KORfct ZELMAR"));
    EXPECT_THAT(store.Calls().Log("RetrieveStartUp"),
                ElementsAre("RetrieveStartUp ZELPlasticJohnsonCookLT KORISpecObject"));
    EXPECT_THAT(store.Calls().Log("Instantiate"),
                ElementsAre("Instantiate ZELPlasticJohnsonCookLT(start-up) \"\""));
    EXPECT_THAT(store.World()->openCatalogsAtInstantiations, ElementsAre(0));
    EXPECT_THAT(store.Calls().Log("SetDouble"),
                ElementsAre("SetDouble ZELPlasticJohnsonCookLT.CoeffA 0",
                            "SetDouble ZELPlasticJohnsonCookLT.CoeffB 0",
                            "SetDouble ZELPlasticJohnsonCookLT.CoeffN 0",
                            "SetDouble ZELPlasticJohnsonCookLT.CoeffM 0",
                            "SetDouble ZELPlasticJohnsonCookLT.MeltingTemperature 273.15",
                            "SetDouble ZELPlasticJohnsonCookLT.TransitionTemperature 273.15"));
}

TEST(ZELMaterialPlasticFaults, LeaveNothingBehindWhicheverOfConstructionFails) {
    for (const ZELFault fault : kFaults) {
        ZELFaultSweep(fault, [](ZELFaultRun& run) {
            const Curve curve(run.store);
            const long material = References(curve.tree.material);
            const long feature = References(curve.tree.plastic);

            run.Act([&] { const ZELMaterialPlastic plastic(curve.tree.material.Get()); });

            const bool quiet = !run.FaultHit() || run.Threw() || Hit(run, "GetListOfDouble") ||
                               Hit(run, "GetAttrKey ZELPlasticLT.PlasticHardeningType");
            // A hardening type that cannot be read is none, and that is no failure.
            const bool typeRefused = Hit(run, "QueryInterface ZELPlasticLT KORISpecAttrAccess");
            if (!typeRefused) {
                EXPECT_EQ(curve.diagnostics.Lines().empty(), quiet);
            }
            EXPECT_EQ(References(curve.tree.material), material);
            EXPECT_EQ(References(curve.tree.plastic), feature);
            EXPECT_THAT(List(curve.tree.plastic, "StressData"), Optional(ElementsAre(1.0)));
        });
    }
}

TEST(ZELMaterialPlasticFaults, KeepWhatIsStoredUpToTheColumnThatFails) {
    for (const ZELFault fault : kFaults) {
        ZELFaultSweep(fault, [](ZELFaultRun& run) {
            const Curve curve(run.store);
            ZELMaterialPlastic plastic(curve.tree.material.Get());
            const long feature = References(curve.tree.plastic);
            HRESULT status = S_OK;

            run.Act([&] { status = plastic.SetPlasticDataArray(ZELTableOf({{5.0, 0.0, 6.0}})); });

            const double stress = (*List(curve.tree.plastic, "StressData"))[0];
            const double temperature = (*List(curve.tree.plastic, "TemperatureData"))[0];
            EXPECT_EQ(temperature, run.FaultHit() ? 2.0 : 6.0);
            if (!run.Threw()) {
                EXPECT_EQ(stress, run.FaultHit() ? 1.0 : 5.0);
            }
            // The type is found out through an access of its own: without it there is no type to write for.
            const bool noType = run.FaultHit() && !run.Threw() && status == S_OK;
            EXPECT_EQ(curve.services.FatalReports().size(), noType ? 1u : 0u);
            EXPECT_EQ(References(curve.tree.plastic), feature);
        });
    }
}

TEST(ZELMaterialPlasticFaults, LeaveNothingBehindWhicheverCallOfReadingTheCurveFails) {
    for (const ZELFault fault : kFaults) {
        ZELFaultSweep(fault, [](ZELFaultRun& run) {
            const Curve curve(run.store);
            ZELMaterialPlastic plastic(curve.tree.material.Get());
            const long feature = References(curve.tree.plastic);
            ZELRows rows;

            run.Act([&] { rows = ZELRowsOf(plastic.GetPlasticDataArray()); });

            if (!run.FaultHit()) {
                EXPECT_EQ(rows, (ZELRows{{1.0, 0.0, 2.0}}));
            } else {
                EXPECT_TRUE(rows.empty() || rows == (ZELRows{{1.0, 0.0, 2.0}})) << "kept, or none";
            }
            EXPECT_EQ(References(curve.tree.plastic), feature);
        });
    }
}

TEST(ZELMaterialPlasticFaults, LeaveNoHalfMadeJohnsonCookReferenceBehind) {
    for (const ZELFault fault : kFaults) {
        const int faults = ZELFaultSweep(fault, [](ZELFaultRun& run) {
            const Hardening hardening(run.store, "");
            ZELMaterialPlastic plastic(hardening.tree.material.Get());
            SetText(hardening.tree.plastic, "PlasticHardeningType", "JohnsonCookHardening");
            const long feature = References(hardening.tree.plastic);
            const long features = run.store.LiveFeatures();
            HRESULT status = S_OK;

            run.Act([&] {
                status = plastic.SetPlasticDataArray(ZELTableOf({{1.0, 2.0, 3.0, 4.0, 5.0, 6.0}}));
            });

            const auto stored = Component(hardening.tree.plastic, "JohnsonCookData_v2");
            if (!run.FaultHit()) {
                EXPECT_EQ(status, S_OK);
                EXPECT_EQ(GetNumber(stored, "TransitionTemperature"), 6.0);
            }
            if (stored) {
                EXPECT_EQ(References(stored), 3) << "container, attribute and this test";
            }
            if (FAILED(status) && !run.Threw()) {
                EXPECT_TRUE(!stored || Hit(run, "QueryInterface ZELPlasticJohnsonCookLT"))
                    << "nothing is stored";
            }
            EXPECT_LE(run.store.LiveFeatures(), features + 1);
            EXPECT_EQ(References(hardening.tree.plastic), feature);
            EXPECT_EQ(KORModule::Of("ZELMaterialModel").LiveObjects(), 1) << "the behavior alone";
        });
        EXPECT_GT(faults, 20);
    }
}

TEST(ZELMaterialPlasticFaults, KeepTheStoredFlagTypeAndNameWhenTheirWriteFails) {
    using Write = HRESULT (*)(ZELMaterialPlastic&);
    const std::vector<Write> writes = {
        [](ZELMaterialPlastic& plastic) { return plastic.SetPlasticEnabled(1); },
        [](ZELMaterialPlastic& plastic) { return plastic.SetTemperatureDependent(1); },
        [](ZELMaterialPlastic& plastic) { return plastic.SetDataFile("after.csv"); },
        [](ZELMaterialPlastic& plastic) { return plastic.SetHardeningType("KinematicHardening"); },
    };
    for (const ZELFault fault : kFaults) {
        for (const Write write : writes) {
            const int faults = ZELFaultSweep(fault, [write](ZELFaultRun& run) {
                const Curve curve(run.store);
                ZELMaterialPlastic plastic(curve.tree.material.Get());
                HRESULT status = S_OK;

                run.Act([&] { status = write(plastic); });

                if (run.FaultHit() && !run.Threw()) {
                    EXPECT_EQ(status, E_NOINTERFACE);
                }
                const int changed =
                    GetFlag(curve.tree.material, "ZELPlasticFlag") +
                    GetFlag(curve.tree.plastic, "PlasticTemperatureDependent") +
                    (GetText(curve.tree.plastic, "DataFile") == "after.csv") +
                    (GetText(curve.tree.plastic, "PlasticHardeningType") == "KinematicHardening");
                EXPECT_EQ(changed, run.FaultHit() ? 0 : 1);
            });
            EXPECT_EQ(faults, fault == ZELFault::Throw ? 2 : 1) << "the keys are resolved already";
        }
    }
}
