#include <algorithm>

#include "zelmat/pictures/GnuplotText.h"
#include "zelmat/pictures/PictureColors.h"
#include "zelmat/pictures/PictureLayout.h"
#include "zelmat/pictures/PictureScript.h"
#include "zelmat/quantities/NumberText.h"

namespace zelmat {

void PictureScript::Bars() {
    constexpr double kForValues = 90.0;
    constexpr int kTicks = 6, kDigits = 4;
    Margins(kBarsLeft, kForValues);
    Frame();
    Line("unset grid");
    Line("set grid x lc rgb '#dddddd' lt 1 lw 0.7");
    Line("set key off");
    std::string tics = "set ytics scale 0 font ',11' (";
    Line(data_ + "b << EOD");
    double greatest = 0.0, least = 0.0;
    const std::size_t count = picture_.bars.size();
    for (std::size_t i = 0; i < count; ++i) {
        const PictureBar& bar = picture_.bars[i];
        const double length = std::clamp(bar.value, -kGreatestDrawn, kGreatestDrawn);
        const std::string place = std::to_string(count - i);
        Line("0 " + place + " 0 " + NumberText(length) + " " + place);
        tics += (i > 0 ? ", " : "") + GnuplotText(BarLabel(bar)) + " " + place;
        greatest = std::max(greatest, length);
        least = std::min(least, length);
    }
    Line("EOD");
    Line(tics + ")");
    for (std::size_t i = 0; i < count; ++i) {
        const double value = picture_.bars[i].value;
        Line("set label " + GnuplotText(RoundedText(value, kDigits)) + " at " +
             NumberText(std::clamp(value, 0.0, kGreatestDrawn)) + "," + std::to_string(count - i) +
             " left offset character 0.7,0 font ',11'");
    }
    const PictureRange range{least < 0.0 ? 1.05 * least : 0.0,
                             greatest > 0.0 || least < 0.0 ? 1.05 * greatest : 1.0};
    AxisX(TicksOf(range, kTicks));
    Line(RangeText("x", range));
    Line(RangeText("y", {0.4, static_cast<double>(count) + 0.6}));
    Line("set style fill solid 0.85 noborder");
    Line("plot " + data_ + "b using (0.5*$4):2:3:4:($2-0.32):($2+0.32) with boxxyerror lc rgb '" +
         SeriesColor(0, 1, false) + "' notitle");
}

}  // namespace zelmat
