#include "zelmat/pictures/PictureLayout.h"

#include "zelmat/pictures/AxisTicks.h"
#include "zelmat/pictures/GnuplotText.h"
#include "zelmat/quantities/NumberText.h"
#include "zelmat/text/Printable.h"
#include "zelmat/text/WrappedText.h"

namespace zelmat {

std::string ScriptNumber(double value) {
    constexpr int kDigits = 9;
    return NumberText(RoundedTo(value, kDigits));
}

std::string BarLabel(const PictureBar& bar) {
    constexpr double kBarLabelRoom = kBarsLeft - 40.0;
    return ShortenedText(Printable(bar.label), kBarLabelRoom, kLegendFont);
}

std::string AxisTitle(const PictureAxis& axis, int exponent) {
    return TitleWithUnit(axis.title, UnitWithExponent(axis.unit, exponent));
}

std::string RangeText(const char* axis, const PictureRange& range) {
    return std::string("set ") + axis + "range [" + NumberText(range.lower) + ":" + NumberText(range.upper) +
           "]";
}

}  // namespace zelmat
