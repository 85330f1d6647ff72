#include "zelmat/pictures/DrawnPoints.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace zelmat {

namespace {

constexpr std::size_t kAllDrawn = 2000;
constexpr double kPixels = 1000.0;  // across, a few more than there are

using Place = std::vector<PicturePoint>::const_iterator;

void AddRun(Place begin, Place end, std::vector<PicturePoint>& drawn) {
    const auto lower = [](const PicturePoint& a, const PicturePoint& b) { return a.y < b.y; };
    std::array<Place, 4> kept = {begin, std::min_element(begin, end, lower),
                                 std::max_element(begin, end, lower), end - 1};
    std::sort(kept.begin(), kept.end());
    const auto last = std::unique(kept.begin(), kept.end());
    for (auto at = kept.begin(); at != last; ++at) drawn.push_back(**at);
}

}  // namespace

std::vector<PicturePoint> DrawnPoints(const std::vector<PicturePoint>& points, const PictureRange& x) {
    if (points.size() <= kAllDrawn) return points;
    // Where a point is no number it breaks the line, which is a run of its own.
    const auto pixel = [&](const PicturePoint& point) {
        return IsDrawn(point) ? std::floor((point.x - x.lower) / (x.upper - x.lower) * kPixels) : -kPixels;
    };
    std::vector<PicturePoint> drawn;
    for (auto begin = points.begin(); begin != points.end();) {
        const double at = pixel(*begin);
        const auto end = std::find_if(begin + 1, points.end(),
                                      [&](const PicturePoint& point) { return pixel(point) != at; });
        AddRun(begin, end, drawn);
        begin = end;
    }
    return drawn;
}

}  // namespace zelmat
