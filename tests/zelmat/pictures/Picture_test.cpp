#include "zelmat/pictures/Picture.h"

#include <gtest/gtest.h>

#include <limits>

#include "zelmat/pictures/PictureRange.h"

namespace {

using zelmat::Description;
using zelmat::Picture;
using zelmat::PictureKind;
using zelmat::PicturePoint;
using zelmat::RangeOf;
using zelmat::WithMargin;

Picture Steel() {
    return {.name = "elastic",
            .title = "Steel",
            .what = "Young's modulus over temperature",
            .x = {.title = "temperature", .unit = "degC"},
            .y = {.title = "Young's modulus", .unit = "MPa"},
            .series = {
                {.label = "a", .points = {{20.0, 210000.0}, {1e9, std::numeric_limits<double>::quiet_NaN()}}},
                {.label = "b", .points = {{1100.0, 4725.0}}}}};
}

TEST(Picture, IsToldToThoseWhoDoNotSeeIt) {
    EXPECT_EQ(
        Description(Steel()),
        "Steel: Young's modulus over temperature. temperature from 20 to 1100 °C, Young's modulus from 4725 "
        "to 210000 MPa. 2 series.");
}

TEST(Picture, OfBarsTellsEveryBar) {
    Picture bars = Steel();
    bars.kind = PictureKind::BARS;
    bars.x.unit = "-";
    bars.bars = {{"OGDEN", 0.0819}, {"YEOH", 0.1224}};

    EXPECT_EQ(Description(bars), "Steel: Young's modulus over temperature. OGDEN: 0.0819; YEOH: 0.1224;");
}

TEST(Picture, OfALongNameIsToldByTheBeginning) {
    Picture steel = Steel();
    steel.title = std::string(10'000, 'x');
    steel.kind = PictureKind::BARS;
    steel.bars = {{std::string(10'000, 'y'), 1.0}};

    EXPECT_LT(Description(steel).size(), 500U);
}

TEST(Picture, HasNoPlaceForNumbersBesideWhichNoMarginIsANumber) {
    Picture picture = Steel();
    picture.series = {{.label = "", .points = {{1.0, 2.0}, {1.7e308, 3.0}, {2.0, -1.7e308}}}};

    const auto x = RangeOf(picture, &PicturePoint::x), y = RangeOf(picture, &PicturePoint::y);
    ASSERT_TRUE(x && y);
    EXPECT_EQ(x->upper, 1.0);
    EXPECT_EQ(y->lower, 2.0);
    EXPECT_EQ(WithMargin({5e-324, 1e-323}, false).lower, -1.0) << "as good as 0";
}

TEST(Picture, HasTheRangeOfThePointsThatAreNumbers) {
    const auto range = RangeOf(Steel(), &PicturePoint::x);

    ASSERT_TRUE(range);
    EXPECT_EQ(range->lower, 20.0);
    EXPECT_EQ(range->upper, 1100.0);
    EXPECT_FALSE(RangeOf(Picture{.name = "", .title = "", .what = ""}, &PicturePoint::x));
}

TEST(Picture, LeavesRoomAroundAndIsNeverFlat) {
    EXPECT_EQ(WithMargin({0.0, 100.0}, false).lower, -5.0);
    EXPECT_EQ(WithMargin({0.0, 100.0}, false).upper, 105.0);
    EXPECT_EQ(WithMargin({50.0, 100.0}, true).lower, 0.0);
    EXPECT_EQ(WithMargin({-10.0, 90.0}, true).lower, -15.0) << "0 is inside";
    EXPECT_DOUBLE_EQ(WithMargin({0.3, 0.3}, false).upper, 0.33);
    EXPECT_EQ(WithMargin({0.0, 0.0}, true).upper, 1.0);
    EXPECT_EQ(WithMargin({235.0, 235.0}, true).lower, 0.0) << "perfect plasticity begins at 0, too";
}

}  // namespace
