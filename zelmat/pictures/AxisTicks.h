#pragma once

#include <string>
#include <vector>

#include "zelmat/pictures/PictureRange.h"

namespace zelmat {

/// Where an axis is marked, and what stands there.
struct AxisTick {
    double at;  ///< in the unit of the axis
    std::string text;
};

/// The marks of an axis at round numbers, each with as many decimals as tell them apart. Of an axis of very
/// large or very small numbers they are numbers of 10^`exponent` units, which the title of the axis has to
/// say.
struct AxisTicks {
    std::vector<AxisTick> ticks;
    int exponent = 0;  ///< a multiple of 3
};

/// About `most` of them within the range, both ends of which are finite numbers.
AxisTicks TicksOf(const PictureRange& range, int most);

/// The next round step (1, 2 or 5 times a power of ten) that is no smaller. `step` is above 0.
double RoundStep(double step);

/// The unit of an axis whose ticks have that exponent: "10⁻⁶/K" of "1/K", "10⁹ Pa" of "Pa", "10³" of "-".
std::string UnitWithExponent(const std::string& unit, int exponent);

}  // namespace zelmat
