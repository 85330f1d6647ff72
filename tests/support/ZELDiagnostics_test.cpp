#include "tests/support/ZELDiagnostics.h"

#include <gmock/gmock.h>

#include "framework/KORDiagnostic.h"

TEST(ZELDiagnostics, TakesTheLinesWrittenDuringItsScope) {
    KORDiagnosticLine("before");
    const ZELDiagnostics diagnostics;

    KORDiagnosticLine("No material SpecObject !");
    KORDiagnosticLine("");
    KORDiagnosticLine("The Elastic data is inconsistent !");

    EXPECT_THAT(diagnostics.Lines(),
                testing::ElementsAre("No material SpecObject !", "", "The Elastic data is inconsistent !"));
}
