#include "tests/support/ZELFlushedOutput.h"

#include <gmock/gmock.h>

#include <iostream>

#include "framework/KORDiagnostic.h"

using testing::ElementsAre;
using testing::IsEmpty;

TEST(ZELFlushedOutput, HoldsEachDiagnosticLineAsSoonAsItIsWritten) {
    std::vector<std::string> afterFirst;
    std::vector<std::string> afterBoth;
    {
        const ZELFlushedOutput output;
        KORDiagnosticLine("No material SpecObject !");
        afterFirst = output.Lines();
        KORDiagnosticLine("");
        afterBoth = output.Lines();
    }

    EXPECT_THAT(afterFirst, ElementsAre("No material SpecObject !"));
    EXPECT_THAT(afterBoth, ElementsAre("No material SpecObject !", ""));
}

TEST(ZELFlushedOutput, DoesNotHoldWhatWasNotFlushed) {
    std::vector<std::string> before;
    std::vector<std::string> after;
    {
        const ZELFlushedOutput output;
        std::cout << "kept back\n";
        before = output.Lines();
        std::cout.flush();
        after = output.Lines();
    }

    EXPECT_THAT(before, IsEmpty());
    EXPECT_THAT(after, ElementsAre("kept back"));
}

TEST(ZELFlushedOutput, LetsTheOutputBeforeItGoWhereItWent) {
    std::vector<std::string> lines;
    std::cout << "before\n";
    {
        const ZELFlushedOutput output;
        lines = output.Lines();
    }

    EXPECT_THAT(lines, IsEmpty());
}
