#include "zelmat/layups/PlyHatching.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "zelmat/quantities/NumberText.h"

namespace zelmat {

namespace {

constexpr double kSpacing = 8.0;  ///< between two lines
constexpr double kMargin = 3.5;   ///< between the lines' ends and the edges

struct Span {
    double from, to;
};

/// The part of a line through the middle of a side of that length that lies within it: |at + t step| <= half.
Span Within(double at, double step, double half) {
    constexpr double kParallel = 1e-9;
    constexpr double kFar = 1e9;
    if (std::abs(step) < kParallel) return std::abs(at) <= half ? Span{-kFar, kFar} : Span{1.0, -1.0};
    const double one = (-half - at) / step, other = (half - at) / step;
    return {std::min(one, other), std::max(one, other)};
}

}  // namespace

std::string Pixels(double value) {
    constexpr double kSteps = 100.0;
    const double rounded = std::round(value * kSteps) / kSteps;
    return NumberText(rounded == 0.0 ? 0.0 : rounded);
}

std::string PlyHatching(const PictureBox& box, double angle) {
    const double radians = std::remainder(angle, 180.0) * std::numbers::pi / 180.0;
    const double right = std::cos(radians), down = -std::sin(radians);
    const double middleX = box.left + box.width / 2.0, middleY = box.top + box.height / 2.0;
    const double halfWidth = box.width / 2.0 - kMargin, halfHeight = box.height / 2.0 - kMargin;
    const int most = static_cast<int>((halfWidth + halfHeight) / kSpacing) + 1;
    std::string path;
    for (int line = -most; line <= most; ++line) {
        const double x = -down * kSpacing * line, y = right * kSpacing * line;
        const Span across = Within(x, right, halfWidth), upright = Within(y, down, halfHeight);
        const double from = std::max(across.from, upright.from), to = std::min(across.to, upright.to);
        if (!(to - from >= 1.0)) continue;
        path += (path.empty() ? "M" : " M") + Pixels(middleX + x + from * right) + ' ' +
                Pixels(middleY + y + from * down) + 'L' + Pixels(middleX + x + to * right) + ' ' +
                Pixels(middleY + y + to * down);
    }
    return path;
}

}  // namespace zelmat
