#include "zelmat/quantities/NumberText.h"

#include <gtest/gtest.h>

#include <cmath>
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

TEST(NumberText, RoundsToSignificantDigits) {
    EXPECT_EQ(zelmat::RoundedTo(0.0787401574803149, 6), 0.0787402);
    EXPECT_EQ(zelmat::RoundedTo(123456789.0, 4), 123500000.0);
    EXPECT_EQ(zelmat::RoundedTo(-0.5, 6), -0.5);
    EXPECT_FALSE(std::signbit(zelmat::RoundedTo(-0.0, 6)));
    EXPECT_TRUE(std::isinf(zelmat::RoundedTo(std::numeric_limits<double>::infinity(), 6)));
    EXPECT_TRUE(std::isnan(zelmat::RoundedTo(std::numeric_limits<double>::quiet_NaN(), 6)));
}

}  // namespace
