#pragma once

#include <optional>

#include "zelmat/pictures/Picture.h"

namespace zelmat {

/// From the least to the greatest value along an axis.
struct PictureRange {
    double lower, upper;
};

/// Of all points of all series; nothing without any.
std::optional<PictureRange> RangeOf(const Picture& picture, double PicturePoint::*coordinate);

/// With room around for marks; never empty. `fromZero`: from 0 where nothing is negative.
PictureRange WithMargin(PictureRange range, bool fromZero);

}  // namespace zelmat
