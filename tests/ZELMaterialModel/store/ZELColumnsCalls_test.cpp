// What writing and reading columns asks of the store, and what it leaves when a call fails.

#include <gmock/gmock.h>

#include "tests/ZELMaterialModel/store/ZELTwoColumns.h"
#include "tests/support/ZELFaultSweep.h"

using testing::ElementsAre;
using testing::Optional;

TEST(ZELColumnCalls, ResolveEachKeyJustBeforeItsColumnIsWritten) {
    ZELMapStore store;
    ZELDefineTable(store);
    const auto feature = store.Make("TableLT");
    ZELTwoColumns columns;

    columns.Write(feature, {{1.0, 2.0, 3.0}}, true);

    EXPECT_THAT(store.Calls().Log(),
                ElementsAre("QueryInterface TableLT KORISpecAttrAccess", "GetAttrKey TableLT.First",
                            "SetListOfDouble TableLT.First [1]", "GetAttrKey TableLT.Second",
                            "SetListOfDouble TableLT.Second [2]", "GetAttrKey TableLT.Temperature",
                            "SetListOfDouble TableLT.Temperature [3]"));
}

TEST(ZELColumnCalls, StopAtTheColumnWhoseKeyIsMissing) {
    const std::vector<std::pair<const char*, std::size_t>> callsUpTo = {
        {"First", 2}, {"Second", 4}, {"Temperature", 6}};
    for (const auto& [missing, calls] : callsUpTo) {
        ZELMapStore store;
        ZELDefineTable(store);
        store.OmitAttribute("TableLT", missing);
        ZELTwoColumns columns;

        columns.Write(store.Make("TableLT"), {{1.0, 2.0, 3.0}}, true);

        EXPECT_EQ(store.Calls().Log().size(), calls) << missing;
        EXPECT_EQ(store.Calls().Log().back(), std::string("GetAttrKey TableLT.") + missing + " not found");
    }
}

TEST(ZELColumnCalls, ResolveAllKeysBeforeTheyReadAnyColumn) {
    ZELMapStore store;
    ZELDefineTable(store);
    const auto feature = store.Make("TableLT");
    ZELTwoColumns columns;

    columns.Read(feature, false);

    EXPECT_THAT(store.Calls().Log(),
                ElementsAre("QueryInterface TableLT KORISpecAttrAccess", "GetAttrKey TableLT.First",
                            "GetAttrKey TableLT.Second", "GetAttrKey TableLT.Temperature",
                            "GetListOfDouble TableLT.First", "GetListOfDouble TableLT.Second",
                            "GetListOfDouble TableLT.Temperature"));
}

TEST(ZELColumnCalls, ResolveNoKeyASecondTime) {
    ZELMapStore store;
    ZELDefineTable(store);
    const auto first = store.Make("TableLT");
    const auto second = store.Make("TableLT");
    ZELTwoColumns columns;

    columns.Write(first, {{1.0, 2.0, 3.0}}, true);
    columns.Write(second, {{4.0, 5.0, 6.0}}, true);
    columns.Read(first, true);

    EXPECT_EQ(store.Calls().Log("GetAttrKey").size(), 3u);
    EXPECT_EQ(ZELRowsOf(columns.table), (ZELRows{{1.0, 2.0, 3.0}}));
    EXPECT_THAT(List(second, "Temperature"), Optional(ElementsAre(6.0)));
}

TEST(ZELColumnFaults, LeaveTheColumnsBeforeTheFailingCallWrittenAndTheOthersAsTheyWere) {
    for (const ZELFault fault : {ZELFault::Refuse, ZELFault::SuccessWithNull, ZELFault::Throw}) {
        const int faults = ZELFaultSweep(fault, [](ZELFaultRun& run) {
            ZELDefineTable(run.store);
            const auto feature = run.store.Make("TableLT");
            const long references = References(feature);
            HRESULT status = S_OK;

            run.Act([&] { status = ZELTwoColumns().Write(feature, {{1.0, 2.0, 3.0}}, true); });

            const std::string& failed = run.FailedCall();
            if (!run.Threw()) {
                const HRESULT missing = failed.starts_with("GetAttrKey") ? E_FAIL : S_OK;
                EXPECT_EQ(status, failed.starts_with("QueryInterface") ? E_NOINTERFACE : missing);
            }
            const auto names = {"First", "Second", "Temperature"};
            bool written = !failed.starts_with("QueryInterface");
            for (const char* name : names) {
                if (failed.find(std::string("TableLT.") + name) != std::string::npos) written = false;
                EXPECT_EQ(List(feature, name).has_value(), written) << name;
            }
            EXPECT_EQ(References(feature), references);
        });
        EXPECT_EQ(faults, fault == ZELFault::Throw ? 7 : 4);
    }
}

TEST(ZELColumnFaults, LeaveTheTableAsItWasUntilAllColumnsAreRead) {
    for (const ZELFault fault : {ZELFault::Refuse, ZELFault::SuccessWithNull, ZELFault::Throw}) {
        const int faults = ZELFaultSweep(fault, [](ZELFaultRun& run) {
            ZELDefineTable(run.store);
            const auto feature = run.store.Make("TableLT");
            for (const char* name : {"First", "Second", "Temperature"}) SetList(feature, name, {7.0});
            const long references = References(feature);
            ZELTwoColumns columns;
            HRESULT status = S_OK;

            run.Act([&] { status = columns.Read(feature, true); });

            const std::string& failed = run.FailedCall();
            if (run.Threw()) {
                EXPECT_EQ(ZELRowsOf(columns.table), kZELBefore);
            } else if (failed.starts_with("GetListOfDouble")) {
                EXPECT_EQ(status, S_OK) << "as if the column had never been valued";
                EXPECT_EQ(columns.table.size(), 0);
            } else if (run.FaultHit()) {
                EXPECT_EQ(status, failed.starts_with("QueryInterface") ? E_NOINTERFACE : E_FAIL);
                EXPECT_EQ(ZELRowsOf(columns.table), kZELBefore);
            } else {
                EXPECT_EQ(ZELRowsOf(columns.table), (ZELRows{{7.0, 7.0, 7.0}}));
            }
            EXPECT_EQ(References(feature), references);
        });
        EXPECT_EQ(faults, 7);
    }
}
