#include "framework/KORFatalError.h"

#include <gtest/gtest.h>

#include "tests/support/ZELDiagnostics.h"
#include "tests/support/ZELTestServices.h"

TEST(KORFatalError, IsKeptAndShownOnStandardErrorOnly) {
    const ZELTestServices services;
    const ZELDiagnostics diagnostics;
    testing::internal::CaptureStderr();

    KORFatalError("AssertionFailed:key != NULL", "ZELMaterialPlastic", 412);
    KORFatalError("AssertionFailed:model", "ZELHyperelastic", 7);

    EXPECT_EQ(
        testing::internal::GetCapturedStderr(),
        "ZELMaterialPlastic:412: AssertionFailed:key != NULL\nZELHyperelastic:7: AssertionFailed:model\n");
    EXPECT_TRUE(diagnostics.Lines().empty());
    ASSERT_EQ(services.FatalReports().size(), 2u);
    EXPECT_EQ(services.FatalReports()[0].text, "AssertionFailed:key != NULL");
    EXPECT_EQ(services.FatalReports()[0].source, "ZELMaterialPlastic");
    EXPECT_EQ(services.FatalReports()[0].line, 412);
    EXPECT_EQ(services.FatalReports()[1].text, "AssertionFailed:model");
}
