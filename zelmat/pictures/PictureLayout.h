#pragma once

#include <string>

#include "zelmat/pictures/Picture.h"
#include "zelmat/pictures/PictureRange.h"

namespace zelmat {

// What the kinds of pictures have in common: lengths in pixels, and words of the script.

constexpr double kLegendWidth = 250.0;
constexpr double kBarsLeft = 330.0;
constexpr double kLegendFont = 11.0;

std::string ScriptNumber(double value);                              ///< nine digits
std::string BarLabel(const PictureBar& bar);                         ///< as much as there is room for
std::string AxisTitle(const PictureAxis& axis, int exponent);        ///< "stress [10⁶ Pa]"
std::string RangeText(const char* axis, const PictureRange& range);  ///< "set xrange [0:1]"

}  // namespace zelmat
