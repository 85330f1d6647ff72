#include <gmock/gmock.h>

#include "tests/ZELMaterialModel/src/ZELSingleTable.h"
#include "tests/support/ZELDiagnostics.h"
#include "tests/support/ZELFaultSweep.h"

using testing::ElementsAreArray;
using testing::IsEmpty;

namespace {

/// The platform calls of the four behaviors, and what becomes of the data when one of them fails.
class ZELSingleTableCalls : public testing::TestWithParam<ZELSingleTableCase> {
protected:
    std::string Own(const char* call, const std::string& attribute) const {
        return std::string(call) + " " + GetParam().lateType + "." + attribute;
    }
};

/// A material and a behavior's feature with data, the expected state of which is known.
struct Features {
    Features(ZELTestStore& store, const ZELSingleTableCase& behavior)
        : material(store.Make("ZELMaterialLT")), feature(store.Make(behavior.lateType)) {
        Attach(material, behavior.component, feature);
        SetFlag(material, behavior.flag, true);
        SetFlag(feature, "TemperatureDependent", true);
        SetText(feature, "DataFile", "before.csv");
        SetList(feature, behavior.values, {1.0});
        SetList(feature, "TemperatureData", {293.0});
        materialReferences = References(material);
        featureReferences = References(feature);
    }
    void ExpectReferencesAsBefore() const {
        EXPECT_EQ(References(material), materialReferences);
        EXPECT_EQ(References(feature), featureReferences);
    }

    KORISpecObject_var material;
    KORISpecObject_var feature;
    long materialReferences;
    long featureReferences;
};

const std::vector<ZELFault> kFaults = {ZELFault::Refuse, ZELFault::SuccessWithNull, ZELFault::Throw};

/// What an operation on a single attribute answers when the given call failed.
HRESULT StatusAfter(const ZELFaultRun& run) {
    return run.FailedCall().starts_with("QueryInterface") ? E_NOINTERFACE : S_OK;
}

}  // namespace

TEST_P(ZELSingleTableCalls, ReadEnabledTemperatureFlagTableAndDataFileInThatOrder) {
    ZELMapStore store;
    const Features features(store, GetParam());

    GetParam().make(features.material.Get());

    const std::string accessMaterial = "QueryInterface ZELMaterialLT KORISpecAttrAccess";
    const std::string accessFeature =
        std::string("QueryInterface ") + GetParam().lateType + " KORISpecAttrAccess";
    std::vector<std::string> calls = {accessMaterial,
                                      std::string("GetSpecObject ZELMaterialLT.") + GetParam().component,
                                      accessMaterial,
                                      std::string("GetAttrKey ZELMaterialLT.") + GetParam().flag,
                                      std::string("GetBoolean ZELMaterialLT.") + GetParam().flag,
                                      accessFeature,
                                      Own("GetAttrKey", "TemperatureDependent"),
                                      Own("GetBoolean", "TemperatureDependent"),
                                      accessFeature,
                                      Own("GetAttrKey", GetParam().values),
                                      Own("GetAttrKey", "TemperatureData"),
                                      Own("GetListOfDouble", GetParam().values),
                                      Own("GetListOfDouble", "TemperatureData")};
    if (GetParam().cannotReadReferenceTemperature) {
        calls.insert(calls.end(), {accessFeature, Own("GetAttrKey", "ReferenceTemperature"),
                                   Own("GetDouble", "ReferenceTemperature")});
    }
    calls.insert(calls.end(), {accessFeature, Own("GetAttrKey", "DataFile"), Own("GetString", "DataFile")});
    EXPECT_THAT(store.Calls().Log(), ElementsAreArray(calls));
}

TEST_P(ZELSingleTableCalls, ResolveNoKeyForASecondMaterialOrForASetter) {
    ZELMapStore store;
    const Features first(store, GetParam());
    const Features second(store, GetParam());
    const auto ofFirst = GetParam().make(first.material.Get());
    store.Calls().ClearLog();

    const auto ofSecond = GetParam().make(second.material.Get());
    ofFirst->SetEnabled(0);
    ofFirst->Properties().SetTemperatureDependent(0);
    ofFirst->Properties().SetDataFile("after.csv");
    ofFirst->SetDataArray({{2.0}});

    EXPECT_THAT(store.Calls().Log("GetAttrKey"), IsEmpty());
    EXPECT_EQ(ofSecond->GetDataArray(), (ZELRows{{1.0, 293.0}}));
    EXPECT_EQ(GetText(first.feature, "DataFile"), "after.csv");
    EXPECT_EQ(GetText(second.feature, "DataFile"), "before.csv");
}

TEST_P(ZELSingleTableCalls, AnswerGettersWithoutAny) {
    ZELMapStore store;
    const Features features(store, GetParam());
    const auto behavior = GetParam().make(features.material.Get());
    store.Calls().ClearLog();

    behavior->GetEnabled();
    behavior->GetDataArray();
    behavior->Properties().GetDataFile();
    behavior->Properties().GetTemperatureDependent();

    EXPECT_THAT(store.Calls().Log(), IsEmpty());
}

TEST_P(ZELSingleTableCalls, ReportAFeatureThatRefusesAttributeAccessAtEveryRead) {
    ZELMapStore store;
    const Features features(store, GetParam());
    store.Calls().RefuseInterface(GetParam().lateType, "KORISpecAttrAccess");
    const ZELDiagnostics diagnostics;

    const auto behavior = GetParam().make(features.material.Get());

    std::vector<std::string> lines = {"Can't get property temperature dependent", GetParam().cannotReadTable};
    if (GetParam().cannotReadReferenceTemperature) {
        lines.emplace_back(GetParam().cannotReadReferenceTemperature);
    }
    lines.emplace_back(GetParam().cannotReadDataFile);
    EXPECT_THAT(diagnostics.Lines(), ElementsAreArray(lines));
    EXPECT_EQ(behavior->GetEnabled(), 1);
    EXPECT_EQ(behavior->SetDataArray({{2.0}}), E_NOINTERFACE);
    EXPECT_EQ(behavior->GetDataArray(), (ZELRows{{2.0}}));
}

TEST_P(ZELSingleTableCalls, LeaveNothingBehindWhicheverOfConstructionFails) {
    for (const ZELFault fault : kFaults) {
        ZELFaultSweep(fault, [](ZELFaultRun& run) {
            const Features features(run.store, GetParam());
            const ZELDiagnostics diagnostics;

            run.Act([&] {
                const auto behavior = GetParam().make(features.material.Get());
                EXPECT_EQ(diagnostics.Lines().empty(),
                          !run.FaultHit() || run.FailedCall().starts_with("GetListOfDouble"));
                const bool flagFails = run.FailedCall().ends_with("Flag");
                if (!flagFails && !run.FailedCall().starts_with("QueryInterface ZELMaterialLT")) {
                    EXPECT_EQ(behavior->GetEnabled(), 1);
                }
            });

            EXPECT_TRUE(GetFlag(features.material, GetParam().flag));
            EXPECT_THAT(List(features.feature, GetParam().values),
                        testing::Optional(testing::ElementsAre(1.0)));
            features.ExpectReferencesAsBefore();
        });
    }
}

TEST_P(ZELSingleTableCalls, KeepTheStoredFlagsAndNameWhenAWriteFailsAndTheNewOnesInMemory) {
    using Write = HRESULT (*)(ZELSingleTable&);
    const std::vector<Write> writes = {
        [](ZELSingleTable& behavior) { return behavior.SetEnabled(0); },
        [](ZELSingleTable& behavior) { return behavior.Properties().SetTemperatureDependent(0); },
        [](ZELSingleTable& behavior) { return behavior.Properties().SetDataFile("after.csv"); },
    };
    for (const ZELFault fault : kFaults) {
        for (const Write write : writes) {
            const int faults = ZELFaultSweep(fault, [write](ZELFaultRun& run) {
                const Features features(run.store, GetParam());
                auto behavior = GetParam().make(features.material.Get());
                HRESULT status = S_OK;

                run.Act([&] { status = write(*behavior); });

                if (!run.Threw()) {
                    EXPECT_EQ(status, StatusAfter(run));
                }
                const int changedInMemory = (behavior->GetEnabled() == 0) +
                                            (behavior->Properties().GetTemperatureDependent() == 0) +
                                            (behavior->Properties().GetDataFile() == "after.csv");
                const int changedInStore = !GetFlag(features.material, GetParam().flag) +
                                           !GetFlag(features.feature, "TemperatureDependent") +
                                           (GetText(features.feature, "DataFile") == "after.csv");
                EXPECT_EQ(changedInMemory, 1);
                EXPECT_EQ(changedInStore, run.FaultHit() ? 0 : 1);
                behavior = nullptr;
                features.ExpectReferencesAsBefore();
            });
            EXPECT_EQ(faults, fault == ZELFault::Throw ? 2 : 1);
        }
    }
}

TEST_P(ZELSingleTableCalls, KeepTheColumnsThatAFailingTableWriteDidNotReach) {
    for (const ZELFault fault : kFaults) {
        const int faults = ZELFaultSweep(fault, [](ZELFaultRun& run) {
            const Features features(run.store, GetParam());
            auto behavior = GetParam().make(features.material.Get());
            HRESULT status = S_OK;

            run.Act([&] { status = behavior->SetDataArray({{2.0, 373.0}}); });

            if (!run.Threw()) {
                EXPECT_EQ(status, StatusAfter(run));
            }
            EXPECT_EQ(behavior->GetDataArray(), (ZELRows{{2.0, 373.0}}));
            const bool temperatureFails = run.FailedCall().find("TemperatureData") != std::string::npos;
            const bool valuesWritten = !run.FaultHit() || temperatureFails;
            EXPECT_EQ(List(features.feature, GetParam().values)->front(), valuesWritten ? 2.0 : 1.0);
            EXPECT_EQ(List(features.feature, "TemperatureData")->front(), run.FaultHit() ? 293.0 : 373.0);
            behavior = nullptr;
            features.ExpectReferencesAsBefore();
        });
        EXPECT_EQ(faults, fault == ZELFault::Throw ? 3 : 1);
    }
}

TEST_P(ZELSingleTableCalls, KeepMemoryWhenAReadCannotReachTheStore) {
    using Read = HRESULT (*)(ZELSingleTable&);
    const std::vector<Read> reads = {
        [](ZELSingleTable& behavior) { return behavior.GetPropertyEnabled(); },
        [](ZELSingleTable& behavior) { return behavior.Properties().GetPropertyTemperatureDependent(); },
        [](ZELSingleTable& behavior) { return behavior.Properties().GetPropertyDataFile(); },
        [](ZELSingleTable& behavior) { return behavior.GetPropertyDataArray(); },
    };
    for (const ZELFault fault : kFaults) {
        for (const Read read : reads) {
            ZELFaultSweep(fault, [read](ZELFaultRun& run) {
                const Features features(run.store, GetParam());
                auto behavior = GetParam().make(features.material.Get());
                HRESULT status = S_OK;

                run.Act([&] { status = read(*behavior); });

                if (!run.Threw()) {
                    EXPECT_EQ(status, StatusAfter(run));
                }
                EXPECT_EQ(behavior->GetEnabled(), 1);
                EXPECT_EQ(behavior->Properties().GetTemperatureDependent(), 1);
                EXPECT_EQ(behavior->Properties().GetDataFile(), "before.csv");
                const bool listWasNull = run.FailedCall().starts_with("GetListOfDouble") && !run.Threw();
                EXPECT_EQ(behavior->GetDataArray(), listWasNull ? ZELRows() : (ZELRows{{1.0, 293.0}}));
                behavior = nullptr;
                features.ExpectReferencesAsBefore();
            });
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, ZELSingleTableCalls, testing::ValuesIn(ZELSingleTableCases()),
                         [](const auto& choice) { return std::string(choice.param.thing); });

TEST(ZELSingleTableKeys, AreNotSharedByTwoClasses) {
    ZELMapStore store;
    std::vector<std::string> looked;
    for (const ZELSingleTableCase& behavior : ZELSingleTableCases()) {
        const Features features(store, behavior);
        behavior.make(features.material.Get());
        looked.push_back(std::string("GetAttrKey ") + behavior.lateType + ".TemperatureData");
    }

    std::vector<std::string> temperatures;
    for (const std::string& line : store.Calls().Log("GetAttrKey")) {
        if (line.ends_with(".TemperatureData")) temperatures.push_back(line);
    }
    EXPECT_EQ(temperatures, looked);
}
