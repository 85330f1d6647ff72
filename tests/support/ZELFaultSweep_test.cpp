#include "tests/support/ZELFaultSweep.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <cstdlib>

namespace {

/// What a module does: resolves a key once per process, then writes.
HRESULT WriteFlag(const KORISpecObject_var& feature) {
    static KORISpecAttrKey* key = nullptr;
    const KORISpecAttrAccess_var access = feature;
    if (!access) return E_NOINTERFACE;
    if (!key) key = access->GetAttrKey("Flag");
    if (!key) return E_FAIL;
    access->SetBoolean(key, true, 0);
    return S_OK;
}

KORISpecObject_var MakeFlagged(ZELMapStore& store) {
    store.DefineType("TestLT", {{"Flag", ZELKind::Boolean}});
    return store.Make("TestLT");
}

}  // namespace

TEST(ZELFaultSweep, FailsOneCallAfterTheOtherUntilNoneIsLeft) {
    const int faults = ZELFaultSweep(ZELFault::Refuse, [](ZELFaultRun& run) {
        const auto feature = MakeFlagged(run.store);
        HRESULT status = S_OK;

        run.Act([&] { status = WriteFlag(feature); });

        if (run.FailedCall() == "QueryInterface TestLT KORISpecAttrAccess") {
            EXPECT_EQ(status, E_NOINTERFACE);
        } else if (run.FailedCall() == "GetAttrKey TestLT.Flag") {
            EXPECT_EQ(status, E_FAIL);
        } else {
            EXPECT_EQ(status, S_OK);
        }
        EXPECT_EQ(GetFlag(feature, "Flag"), !run.FaultHit());
    });

    EXPECT_EQ(faults, 2);
}

TEST(ZELFaultSweep, ThrowsFromEveryCall) {
    const int faults = ZELFaultSweep(ZELFault::Throw, [](ZELFaultRun& run) {
        const auto feature = MakeFlagged(run.store);

        run.Act([&] { EXPECT_EQ(WriteFlag(feature), S_OK); });

        EXPECT_EQ(run.Threw(), run.FaultHit());
        EXPECT_EQ(GetFlag(feature, "Flag"), !run.FaultHit());
        EXPECT_EQ(References(feature), 2);
    });

    EXPECT_EQ(faults, 3);
}

TEST(ZELFaultSweep, ReportsFailedAssertionsOfTheRunWithTheCallThatFailed) {
    EXPECT_NONFATAL_FAILURE(ZELFaultSweep(ZELFault::Refuse,
                                          [](ZELFaultRun& run) {
                                              const auto feature = MakeFlagged(run.store);
                                              run.Act([&] { WriteFlag(feature); });
                                              EXPECT_NE(run.FailedCall(), "GetAttrKey TestLT.Flag");
                                          }),
                            "fault 2: failing call: GetAttrKey TestLT.Flag");
}

TEST(ZELFaultSweep, ReportsTheDeathOfARun) {
    EXPECT_NONFATAL_FAILURE(ZELFaultSweep(ZELFault::Refuse, [](ZELFaultRun&) { std::_Exit(3); }),
                            "fault 1: the process ended");
}

#ifdef __SANITIZE_ADDRESS__
TEST(ZELFaultSweep, ReportsTheLeaksOfARun) {
    EXPECT_NONFATAL_FAILURE(
        ZELFaultSweep(ZELFault::Refuse,
                      [](ZELFaultRun&) { static_cast<void>(new KORRawColldouble(ListOf({1.0}))); }),
        "fault 1: the process ended");
}
#endif
