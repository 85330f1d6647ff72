#include "tests/support/ZELDiagnostics.h"

#include <gmock/gmock.h>

#include <iostream>

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

TEST(ZELDiagnostics, ShowsWhatWasNotFlushed) {
    const ZELDiagnostics diagnostics;

    KORDiagnosticLine("The Elastic data is inconsistent !");
    std::cout << "kept back";

    EXPECT_THAT(diagnostics.Lines(),
                testing::ElementsAre("The Elastic data is inconsistent !", "(not flushed) kept back"));
}
