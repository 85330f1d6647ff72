#include "zelmat/pictures/PictureColors.h"

#include <gtest/gtest.h>

#include <set>

namespace {

using zelmat::SeriesColor;
using zelmat::SeriesMark;

/// Relative luminance, as print makes grey of it.
double Brightness(const std::string& color) {
    const auto part = [&](std::size_t at) { return std::stoi(color.substr(at, 2), nullptr, 16) / 255.0; };
    return 0.2126 * part(1) + 0.7152 * part(3) + 0.0722 * part(5);
}

TEST(PictureColors, AreToldApartByColorBlindPeople) {
    EXPECT_EQ(SeriesColor(0, 3, false), "#0072b2");
    EXPECT_EQ(SeriesColor(1, 3, false), "#d55e00");
    EXPECT_EQ(SeriesColor(2, 3, false), "#009e73");
}

TEST(PictureColors, OfGradedSeriesGetBrighterFromTheFirstToTheLast) {
    for (int count = 2; count <= 12; ++count) {
        double before = -1.0;
        for (int i = 0; i < count; ++i) {
            const double next =
                Brightness(SeriesColor(static_cast<std::size_t>(i), static_cast<std::size_t>(count), true));
            EXPECT_GT(next, before) << i << " of " << count;
            before = next;
        }
        EXPECT_LT(before, 0.75) << "seen on white";
    }
}

TEST(PictureColors, OfManySeriesAreAllDifferent) {
    std::set<std::string> colors;
    for (std::size_t i = 0; i < 12; ++i) colors.insert(SeriesColor(i, 12, false));
    EXPECT_EQ(colors.size(), 12u);
    EXPECT_NE(SeriesMark(0), SeriesMark(1));
}

}  // namespace
