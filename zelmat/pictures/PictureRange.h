#pragma once

#include <optional>

#include "zelmat/pictures/Picture.h"

namespace zelmat {

/// From the least to the greatest value along an axis.
struct PictureRange {
    double lower, upper;
};

constexpr double kGreatestDrawn = 1e300;

/// Whether a point has a place in a picture: no number, and none beyond 1e300, beside which no margin and no
/// tick would be a number, has one.
bool IsDrawn(const PicturePoint& point);

/// Of all points of all series that are drawn; nothing without any.
std::optional<PictureRange> RangeOf(const Picture& picture, double PicturePoint::*coordinate);

/// With room around for marks; never empty. `fromZero`: from 0 where nothing is negative. Numbers below
/// 1e-300 are 0 in it.
PictureRange WithMargin(PictureRange range, bool fromZero);

}  // namespace zelmat
