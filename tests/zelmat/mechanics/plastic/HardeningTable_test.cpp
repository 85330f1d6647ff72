#include "zelmat/mechanics/plastic/HardeningTable.h"

#include <gmock/gmock.h>

#include <cmath>

namespace {

using namespace zelmat::mechanics;
using testing::ElementsAre;
using testing::IsEmpty;

HardeningTable Steel() {
    return *HardeningTable::Over(
        {{200, 0, 300}, {300, 0.1, 300}, {340, 0.2, 300}, {100, 0, 500}, {160, 0.1, 500}});
}

TEST(HardeningTable, IsLinearBetweenPointsAndBetweenTemperatures) {
    EXPECT_EQ(Steel().At(0.05, 300)->stress, 250);
    EXPECT_EQ(Steel().At(0.1, 300)->stress, 300);
    EXPECT_THAT(Steel().At(0.1, 300)->notes, IsEmpty());
    EXPECT_EQ(Steel().At(0.05, 400)->stress, 190);  // between 250 and 130
    EXPECT_THAT(Steel().At(0.05, 400)->notes,
                ElementsAre("interpolated between the curves of two temperatures"));
}

TEST(HardeningTable, IsConstantOutsideAndSaysSo) {
    const auto strained = Steel().At(0.3, 300);
    EXPECT_EQ(strained->stress, 340);
    EXPECT_TRUE(strained->outsideStrain);
    EXPECT_FALSE(strained->outsideTemperature);
    EXPECT_THAT(strained->notes, ElementsAre("beyond the last plastic strain: stress of the last point"));

    for (const double temperature : {200.0, 600.0}) {
        const auto outside = Steel().At(0, temperature);
        EXPECT_EQ(outside->stress, temperature < 300 ? 200 : 100);
        EXPECT_TRUE(outside->outsideTemperature);
        EXPECT_FALSE(outside->outsideStrain);
        EXPECT_THAT(outside->notes, ElementsAre("outside the temperatures: curve of the nearest one"));
    }
    // The curve at 500 ends before that at 300: one of the two that were read is outside.
    EXPECT_TRUE(Steel().At(0.15, 400)->outsideStrain);
    EXPECT_EQ(Steel().At(0.15, 400)->stress, 240);
    EXPECT_FALSE(Steel().At(0.15, 300)->outsideStrain);
}

TEST(HardeningTable, IsRefusedForRowsThatAreNoCurves) {
    const auto why = [](const std::vector<HardeningPoint>& rows) { return HardeningTable::Over(rows).Why(); };
    EXPECT_EQ(why({}), "a hardening table needs a row");
    EXPECT_EQ(why({{200, 0.1, 300}}), "row 1: a curve has to start at plastic strain 0");
    EXPECT_EQ(why({{200, 0, 300}, {210, 0, 300}}), "row 2: the plastic strain does not rise");
    EXPECT_EQ(why({{200, 0, 300}, {210, 0, 200}}), "row 2: the temperature falls");
    EXPECT_EQ(why({{NAN, 0, 300}}), "row 1 holds a number that is not finite");
    EXPECT_EQ(Steel().At(-1, 300).Why(), "a plastic strain has to be a finite number from 0 on");
    EXPECT_EQ(Steel().At(0, NAN).Why(), "a temperature has to be a finite number");
}

}  // namespace
