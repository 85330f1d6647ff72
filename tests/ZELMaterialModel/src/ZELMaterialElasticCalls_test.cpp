#include <gmock/gmock.h>

#include "ZELMaterialModel/include/ZELMaterialElastic.h"
#include "framework/KORError.h"
#include "tests/ZELMaterialModel/ZELMaterialTree.h"
#include "tests/ZELMaterialModel/ZELRows.h"
#include "tests/support/ZELDiagnostics.h"
#include "tests/support/ZELFaultSweep.h"
#include "tests/support/ZELTestServices.h"

using testing::ElementsAre;
using testing::Optional;

namespace {

const std::vector<ZELFault> kFaults = {ZELFault::Refuse, ZELFault::SuccessWithNull, ZELFault::Throw};

/// An enabled, temperature-independent material with one row.
struct Enabled {
    explicit Enabled(ZELTestStore& store) : tree(store) {
        SetFlag(tree.material, "ZELElasticFlag", true);
        SetList(tree.elastic, "YoungData", {1.0});
        SetList(tree.elastic, "PoissonData", {0.1});
        SetList(tree.elastic, "TemperatureData", {});
    }
    ZELMaterialTree tree;
    ZELTestServices services;
};

}  // namespace

TEST(ZELMaterialElasticCalls, ReadEnabledTemperatureFlagTableAndDataFileInThatOrder) {
    ZELMapStore store;
    const Enabled enabled(store);

    const ZELMaterialElastic elastic(enabled.tree.material.Get());

    EXPECT_THAT(
        store.Calls().Log(),
        ElementsAre(
            "QueryInterface ZELMaterialLT KORISpecAttrAccess", "GetSpecObject ZELMaterialLT.ZELElastic",
            "QueryInterface ZELMaterialLT KORISpecAttrAccess", "GetAttrKey ZELMaterialLT.ZELElasticFlag",
            "GetBoolean ZELMaterialLT.ZELElasticFlag", "QueryInterface ZELElasticLT KORISpecAttrAccess",
            "GetAttrKey ZELElasticLT.ElasticTemperatureDependent",
            "GetBoolean ZELElasticLT.ElasticTemperatureDependent",
            "QueryInterface ZELElasticLT KORISpecAttrAccess", "GetAttrKey ZELElasticLT.YoungData",
            "GetAttrKey ZELElasticLT.PoissonData", "GetAttrKey ZELElasticLT.TemperatureData",
            "GetListOfDouble ZELElasticLT.YoungData", "GetListOfDouble ZELElasticLT.PoissonData",
            "GetListOfDouble ZELElasticLT.TemperatureData", "QueryInterface ZELElasticLT KORISpecAttrAccess",
            "GetAttrKey ZELElasticLT.DataFile", "GetString ZELElasticLT.DataFile"));
}

TEST(ZELMaterialElasticCalls, WriteYoungPoissonAndTemperatureInThatOrder) {
    ZELMapStore store;
    const Enabled enabled(store);
    ZELMaterialElastic elastic(enabled.tree.material.Get());
    store.Calls().ClearLog();

    elastic.SetElasticDataArray(ZELTableOf({{2.0, 0.2}}));

    EXPECT_THAT(store.Calls().Log(), ElementsAre("QueryInterface ZELElasticLT KORISpecAttrAccess",
                                                 "SetListOfDouble ZELElasticLT.YoungData [2]",
                                                 "SetListOfDouble ZELElasticLT.PoissonData [0.2]",
                                                 "SetListOfDouble ZELElasticLT.TemperatureData []"));
}

TEST(ZELMaterialElasticFaults, LeaveNothingBehindWhicheverOfConstructionFails) {
    for (const ZELFault fault : kFaults) {
        const int faults = ZELFaultSweep(fault, [](ZELFaultRun& run) {
            const Enabled enabled(run.store);
            const long material = References(enabled.tree.material);
            const long feature = References(enabled.tree.elastic);
            const ZELDiagnostics diagnostics;

            run.Act([&] {
                const ZELMaterialElastic elastic(enabled.tree.material.Get());
                EXPECT_EQ(diagnostics.Lines().empty(),
                          !run.FaultHit() || run.FailedCall().starts_with("GetListOfDouble"));
            });

            EXPECT_EQ(References(enabled.tree.material), material);
            EXPECT_EQ(References(enabled.tree.elastic), feature);
        });
        EXPECT_EQ(faults, fault == ZELFault::Throw ? 18 : 15);
    }
}

TEST(ZELMaterialElasticFaults, GiveAFailingWriteItsFailureAndRecordNoWarning) {
    for (const ZELFault fault : kFaults) {
        const int faults = ZELFaultSweep(fault, [](ZELFaultRun& run) {
            const Enabled enabled(run.store);
            ZELMaterialElastic elastic(enabled.tree.material.Get());
            const long feature = References(enabled.tree.elastic);
            HRESULT code = S_OK;

            run.Act([&] { code = elastic.SetElasticDataArray(ZELTableOf({{2.0, 0.2}, {3.0, 0.3}})); });

            const std::string& failed = run.FailedCall();
            if (!run.FaultHit()) {
                EXPECT_NE(KORError::Find(code), nullptr);
            } else {
                EXPECT_EQ(code, run.Threw() ? S_OK : E_NOINTERFACE);
                EXPECT_EQ(KORServices::Current().errors.Find(0x00040000), nullptr);
            }
            const bool youngWritten = !run.FaultHit() || failed.find("PoissonData") != std::string::npos ||
                                      failed.find("TemperatureData") != std::string::npos;
            EXPECT_THAT(List(enabled.tree.elastic, "YoungData"),
                        Optional(ElementsAre(youngWritten ? 2.0 : 1.0)));
            EXPECT_EQ(ZELRowsOf(elastic.GetElasticDataArray()), (ZELRows{{2.0, 0.2}}));
            EXPECT_EQ(References(enabled.tree.elastic), feature);
        });
        EXPECT_EQ(faults, fault == ZELFault::Throw ? 4 : 1);
    }
}

TEST(ZELMaterialElasticFaults, KeepMemoryWhenAReadCannotReachTheStore) {
    using Read = HRESULT (*)(ZELMaterialElastic&);
    const std::vector<Read> reads = {
        [](ZELMaterialElastic& elastic) { return elastic.GetPropertyElasticEnabled(); },
        [](ZELMaterialElastic& elastic) { return elastic.GetPropertyTemperatureDependent(); },
        [](ZELMaterialElastic& elastic) { return elastic.GetPropertyElasticDataArray(); },
        [](ZELMaterialElastic& elastic) { return elastic.GetPropertyDataFile(); },
    };
    for (const ZELFault fault : kFaults) {
        for (const Read read : reads) {
            ZELFaultSweep(fault, [read](ZELFaultRun& run) {
                const Enabled enabled(run.store);
                ZELMaterialElastic elastic(enabled.tree.material.Get());
                const long feature = References(enabled.tree.elastic);
                HRESULT status = S_OK;

                run.Act([&] { status = read(elastic); });

                const bool refused = run.FailedCall().starts_with("QueryInterface") && !run.Threw();
                EXPECT_EQ(status, refused ? E_NOINTERFACE : S_OK);
                EXPECT_EQ(elastic.GetElasticEnabled(), 1);
                const bool listWasNull = run.FailedCall().starts_with("GetListOfDouble") && !run.Threw() &&
                                         !run.FailedCall().ends_with("TemperatureData");
                EXPECT_EQ(ZELRowsOf(elastic.GetElasticDataArray()),
                          listWasNull ? ZELRows() : (ZELRows{{1.0, 0.1}}));
                EXPECT_EQ(References(enabled.tree.elastic), feature);
            });
        }
    }
}

TEST(ZELMaterialElasticFaults, KeepTheStoredFlagsAndNameWhenTheirWriteFails) {
    using Write = HRESULT (*)(ZELMaterialElastic&);
    const std::vector<Write> writes = {
        [](ZELMaterialElastic& elastic) { return elastic.SetElasticEnabled(0); },
        [](ZELMaterialElastic& elastic) { return elastic.SetTemperatureDependent(1); },
        [](ZELMaterialElastic& elastic) { return elastic.SetDataFile("after.csv"); },
    };
    for (const ZELFault fault : kFaults) {
        for (const Write write : writes) {
            const int faults = ZELFaultSweep(fault, [write](ZELFaultRun& run) {
                const Enabled enabled(run.store);
                ZELMaterialElastic elastic(enabled.tree.material.Get());
                HRESULT status = S_OK;

                run.Act([&] { status = write(elastic); });

                EXPECT_EQ(status, run.FaultHit() && !run.Threw() ? E_NOINTERFACE : S_OK);
                const int changed = !GetFlag(enabled.tree.material, "ZELElasticFlag") +
                                    GetFlag(enabled.tree.elastic, "ElasticTemperatureDependent") +
                                    (GetText(enabled.tree.elastic, "DataFile") == "after.csv");
                EXPECT_EQ(changed, run.FaultHit() ? 0 : 1);
            });
            EXPECT_EQ(faults, fault == ZELFault::Throw ? 2 : 1);
        }
    }
}
