#pragma once

#include <vector>

#include "zelmat/pictures/Picture.h"
#include "zelmat/pictures/PictureRange.h"

namespace zelmat {

/// The points of a line that a picture can show, in their order: all of few; of thousands those that look the
/// same, from each run of points within one pixel across the first, the lowest, the highest and the last one.
/// `x`: what the picture spans.
std::vector<PicturePoint> DrawnPoints(const std::vector<PicturePoint>& points, const PictureRange& x);

}  // namespace zelmat
