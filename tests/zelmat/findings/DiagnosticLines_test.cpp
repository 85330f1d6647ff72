#include "zelmat/findings/DiagnosticLines.h"

#include <gmock/gmock.h>

#include <iostream>

#include "framework/KORDiagnostic.h"

namespace {

TEST(DiagnosticLines, BecomeWarningsThatNameTheMaterial) {
    zelmat::Findings findings;
    testing::internal::CaptureStdout();
    {
        const zelmat::DiagnosticLines lines(findings, "steel.json", "S355");
        KORDiagnosticLine("No ZELElastic object found !");
        KORDiagnosticLine("The Density data is inconsistent !");
    }

    ASSERT_EQ(findings.All().size(), 2u);
    EXPECT_EQ(zelmat::FindingLine(findings.All()[0]),
              "steel.json: warning[diagnostic]: S355: No ZELElastic object found !");
    EXPECT_EQ(zelmat::FindingLine(findings.All()[1]),
              "steel.json: warning[diagnostic]: S355: The Density data is inconsistent !");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST(DiagnosticLines, GiveStandardOutputBackAfterTheScope) {
    zelmat::Findings findings;
    testing::internal::CaptureStdout();
    { const zelmat::DiagnosticLines lines(findings, "steel.json", "S355"); }
    std::cout << "after" << std::endl;

    EXPECT_EQ(testing::internal::GetCapturedStdout(), "after\n");
    EXPECT_TRUE(findings.All().empty());
}

}  // namespace
