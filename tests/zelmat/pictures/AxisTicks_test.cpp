#include "zelmat/pictures/AxisTicks.h"

#include <gmock/gmock.h>

#include <limits>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zelmat::AxisTicks;
using zelmat::RoundStep;
using zelmat::TicksOf;
using zelmat::UnitWithExponent;

std::vector<std::string> Texts(const AxisTicks& axis) {
    std::vector<std::string> texts;
    for (const auto& tick : axis.ticks) texts.push_back(tick.text);
    return texts;
}

TEST(AxisTicks, StandAtRoundNumbersWithinTheRange) {
    const AxisTicks axis = TicksOf({-4.9, 103.0}, 6);

    EXPECT_THAT(Texts(axis), ElementsAre("0", "20", "40", "60", "80", "100"));
    EXPECT_EQ(axis.ticks[1].at, 20.0);
    EXPECT_EQ(axis.exponent, 0);
}

TEST(AxisTicks, HaveDecimalsThatTellThemApart) {
    EXPECT_THAT(Texts(TicksOf({0.0, 0.15}, 3)), ElementsAre("0.00", "0.05", "0.10", "0.15"));
    EXPECT_THAT(Texts(TicksOf({0.30000000, 0.30000001}, 2)),
                ElementsAre("0.300000000", "0.300000005", "0.300000010"));
    EXPECT_THAT(Texts(TicksOf({-1.0, 1.0}, 4)), ElementsAre("-1.0", "-0.5", "0.0", "0.5", "1.0"))
        << "no minus zero";
}

TEST(AxisTicks, LeaveLongRowsOfZerosToTheTitle) {
    const AxisTicks expansion = TicksOf({1.2e-5, 1.5e-5}, 3);
    const AxisTicks modulus = TicksOf({0.0, 2.1e11}, 4);

    EXPECT_EQ(expansion.exponent, -6);
    EXPECT_THAT(Texts(expansion), ElementsAre("12", "13", "14", "15"));
    EXPECT_DOUBLE_EQ(expansion.ticks[0].at, 12e-6);
    EXPECT_EQ(modulus.exponent, 9);
    EXPECT_THAT(Texts(modulus), ElementsAre("0", "100", "200"));
}

TEST(AxisTicks, TakeWhateverNumbersThereAre) {
    constexpr double kGreatest = std::numeric_limits<double>::max();

    EXPECT_FALSE(TicksOf({-kGreatest, kGreatest}, 4).ticks.empty());
    EXPECT_THAT(TicksOf({1e300, 1.0000000000000001e300}, 4).ticks, IsEmpty()) << "one number";
    EXPECT_THAT(TicksOf({0.0, 5e-324}, 4).ticks, IsEmpty());
    EXPECT_LT(TicksOf({1e15, 1e15 + 1.0}, 4).ticks.size(), 10u);
}

TEST(AxisTicks, StepByOneTwoOrFive) {
    EXPECT_DOUBLE_EQ(RoundStep(0.11), 0.2);
    EXPECT_DOUBLE_EQ(RoundStep(2.0), 2.0);
    EXPECT_DOUBLE_EQ(RoundStep(30.0), 50.0);
    EXPECT_DOUBLE_EQ(RoundStep(0.6), 1.0);
}

TEST(AxisTicks, SayTheirExponentInTheUnit) {
    EXPECT_EQ(UnitWithExponent("MPa", 0), "MPa");
    EXPECT_EQ(UnitWithExponent("Pa", 9), "10⁹ Pa");
    EXPECT_EQ(UnitWithExponent("1/K", -6), "10⁻⁶/K");
    EXPECT_EQ(UnitWithExponent("-", -12), "10⁻¹²");
}

}  // namespace
