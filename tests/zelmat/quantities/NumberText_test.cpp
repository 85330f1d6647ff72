#include "zelmat/quantities/NumberText.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using zelmat::NumberText;

TEST(NumberText, UsesTheFewestDigitsThatReadBackEqual) {
    EXPECT_EQ(NumberText(0.3), "0.3");
    EXPECT_EQ(NumberText(0.1 + 0.2), "0.30000000000000004");
    EXPECT_EQ(NumberText(2.1e11), "2.1e+11");
    EXPECT_EQ(NumberText(1.248e-05), "1.248e-05");
    EXPECT_EQ(NumberText(7850.0), "7850");
    EXPECT_EQ(NumberText(-0.0), "-0");
}

TEST(NumberText, HoldsTheLongestNumber) {
    EXPECT_EQ(NumberText(-std::numeric_limits<double>::min()), "-2.2250738585072014e-308");
}

TEST(NumberText, PutsTheUnitBehindIt) {
    EXPECT_EQ(zelmat::WithUnit(293.15, "K"), "293.15 K");
    EXPECT_EQ(zelmat::WithUnit(0.3, "-"), "0.3");
    EXPECT_EQ(zelmat::WithUnit(0.3, ""), "0.3");
}

}  // namespace
