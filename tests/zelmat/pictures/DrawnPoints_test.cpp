#include "zelmat/pictures/DrawnPoints.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

using zelmat::DrawnPoints;
using zelmat::PicturePoint;

TEST(DrawnPoints, AreAllOfThemWhereTheyAreFew) {
    const std::vector<PicturePoint> points = {{0.0, 1.0}, {1.0, 2.0}, {1.0, 3.0}};

    EXPECT_EQ(DrawnPoints(points, {0.0, 1.0}).size(), 3u);
}

TEST(DrawnPoints, KeepEndsAndPeaksOfMany) {
    std::vector<PicturePoint> points;
    for (int i = 0; i <= 100000; ++i) points.push_back({i + 0.0, i == 54321 ? 7.0 : 1.0});

    const auto drawn = DrawnPoints(points, {0.0, 100000.0});

    EXPECT_LT(drawn.size(), 4100u);
    EXPECT_EQ(drawn.front().x, 0.0);
    EXPECT_EQ(drawn.back().x, 100000.0);
    EXPECT_EQ(std::count_if(drawn.begin(), drawn.end(), [](const auto& point) { return point.y == 7.0; }), 1);
    EXPECT_TRUE(
        std::is_sorted(drawn.begin(), drawn.end(), [](const auto& a, const auto& b) { return a.x < b.x; }));
}

TEST(DrawnPoints, KeepWhereALineIsBroken) {
    std::vector<PicturePoint> points;
    for (int i = 0; i < 3000; ++i) points.push_back({i + 0.0, i == 1500 ? std::nan("") : 1.0});

    const auto drawn = DrawnPoints(points, {0.0, 1e9});

    ASSERT_EQ(drawn.size(), 5u) << "all within one pixel: two ends, the break, two ends";
    EXPECT_TRUE(std::isnan(drawn[2].y));
}

}  // namespace
