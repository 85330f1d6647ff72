#include "zelmat/commands/frame/FindingPrinter.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

using zelmat::FindingKind;

std::string Printed(const zelmat::Findings& findings, bool colored = false) {
    std::ostringstream out;
    zelmat::PrintFindings(out, findings, colored);
    return out.str();
}

std::string Lines(int count) {
    std::string lines;
    for (int i = 1; i <= count; ++i) lines += "a:" + std::to_string(i) + ": error[x]: bad\n";
    return lines;
}

TEST(FindingPrinter, PrintsTwentyOfOneCodeAndCountsTheOthers) {
    zelmat::Findings findings;
    for (int i = 1; i <= 100'000; ++i) findings.Add({FindingKind::ERROR, {"a", i}, "x", "bad", {}});
    findings.Add({FindingKind::WARNING, {"a", 7}, "y", "cut", {}});

    EXPECT_EQ(Printed(findings), Lines(20) + "error[x]: and 99,980 more\na:7: warning[y]: cut\n");
}

TEST(FindingPrinter, CountsNothingBehindExactlyTwenty) {
    zelmat::Findings findings;
    for (int i = 1; i <= 20; ++i) findings.Add({FindingKind::ERROR, {"a", i}, "x", "bad", {}});

    EXPECT_EQ(Printed(findings), Lines(20));
}

TEST(FindingPrinter, ColoursTheKindAndNothingElse) {
    zelmat::Findings findings;
    findings.Add({FindingKind::ERROR, {"a", 1}, "x", "bad", {}});
    findings.Add({FindingKind::WARNING, {"a", 2}, "y", "cut", {}});

    EXPECT_EQ(Printed(findings, true),
              "a:1: \033[31merror[x]\033[0m: bad\na:2: \033[33mwarning[y]\033[0m: cut\n");
}

}  // namespace
