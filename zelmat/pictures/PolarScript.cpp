#include <algorithm>
#include <cmath>
#include <numbers>

#include "zelmat/pictures/GnuplotText.h"
#include "zelmat/pictures/PictureLayout.h"
#include "zelmat/pictures/PictureScript.h"
#include "zelmat/quantities/NumberText.h"

namespace zelmat {

namespace {

/// An angle in degrees and a length as a place.
std::vector<PicturePoint> Turned(std::vector<PicturePoint> points) {
    for (PicturePoint& point : points) {
        const double angle = point.x * std::numbers::pi / 180.0;
        point = {point.y * std::cos(angle), point.y * std::sin(angle)};
    }
    return points;
}

}  // namespace

/// Circles and rays of our own, so that the two directions have one scale.
void PictureScript::Polar() {
    constexpr int kCircles = 4;
    const auto range = RangeOf(picture_, &PicturePoint::y);
    const double reach = range && range->upper > 0.0 ? range->upper : 1.0;
    const double step = RoundStep(reach / kCircles);
    const double edge = step * std::ceil(reach / step * (1.0 - 1e-9));
    for (std::size_t i = 0; i < picture_.series.size(); ++i) {
        Block(DataName(i), Turned(picture_.series[i].points));
    }
    // A square between the left edge and the legend.
    const double room = kPictureWidth - kLegendWidth - PlotHeight();
    Margins(std::max(0.0, room / 2.0), kLegendWidth + std::max(0.0, room / 2.0));
    Line("unset border");
    Line("unset tics");
    Legend();
    Line(RangeText("x", {-1.16 * edge, 1.16 * edge}));
    Line(RangeText("y", {-1.16 * edge, 1.16 * edge}));
    Line("set parametric");
    Line("set trange [0:2*pi]");
    Line("set samples 181");
    const AxisTicks axis = TicksOf({0.0, edge}, kCircles);
    Line("set xlabel " + GnuplotText(AxisTitle(picture_.y, axis.exponent)));
    Plot(PolarGrid(axis));
}

/// The circles, to be drawn first; their numbers stand between the rays of 60° and 90°.
std::vector<std::string> PictureScript::PolarGrid(const AxisTicks& axis) {
    constexpr double kNumbers = 75.0 * std::numbers::pi / 180.0;
    constexpr int kRay = 30;
    std::vector<std::string> circles;
    double edge = 0.0;
    Line("set style textbox opaque fillcolor rgb '#ffffff' noborder margins 0.3,0.3");
    for (const AxisTick& tick : axis.ticks) {
        if (tick.at <= 0.0) continue;
        edge = tick.at;
        const std::string radius = NumberText(tick.at);
        circles.push_back(radius + "*cos(t)," + radius +
                          "*sin(t) with lines lc rgb '#cccccc' lw 0.7 notitle");
        Line("set label " + GnuplotText(tick.text) + " at " + ScriptNumber(tick.at * std::cos(kNumbers)) +
             "," + ScriptNumber(tick.at * std::sin(kNumbers)) +
             " center boxed font ',10' tc rgb '#555555' front");
    }
    for (int angle = 0; angle < 360; angle += kRay) {
        const double x = std::cos(angle * std::numbers::pi / 180.0),
                     y = std::sin(angle * std::numbers::pi / 180.0);
        Line("set arrow from 0,0 to " + ScriptNumber(edge * x) + "," + ScriptNumber(edge * y) +
             " nohead back lc rgb '#cccccc' lw 0.7");
        Line("set label '" + std::to_string(angle) + "°' at " + ScriptNumber(1.09 * edge * x) + "," +
             ScriptNumber(1.09 * edge * y) + " center font ',11'");
    }
    return circles;
}

}  // namespace zelmat
