#include "zelmat/pictures/PictureScript.h"

#include <algorithm>
#include <cmath>

#include "zelmat/pictures/DrawnPoints.h"
#include "zelmat/pictures/GnuplotText.h"
#include "zelmat/pictures/PictureColors.h"
#include "zelmat/pictures/PictureLayout.h"
#include "zelmat/quantities/NumberText.h"
#include "zelmat/text/Printable.h"
#include "zelmat/text/WrappedText.h"

namespace zelmat {

namespace {

// Pixels.
constexpr double kMargin = 20.0;  ///< around all words
constexpr double kPlotHeight = 380.0;
constexpr double kLeft = 112.0;
constexpr double kBelow = 58.0;        ///< ticks and title of the axis x
constexpr double kLegendRoom = 205.0;  ///< for a label
constexpr double kLegendLine = 20.0;
constexpr double kRight = 30.0;
constexpr double kNoteLine = 15.0;
constexpr double kTitleLine = 19.0;
// Of letters.
constexpr double kTitleFont = 15.0 * 1.1;  // bold ones are wider
constexpr double kWhatFont = 13.0;
constexpr double kNoteFont = 11.0;
constexpr double kTickFont = 12.0;

/// Rows of a table that have a mark each; of more every so manyth.
constexpr std::size_t kMarkedRows = 150;

const PictureRange kUnitRange{0.0, 1.0};

std::string LegendLabel(const Series& series) {
    return ShortenedText(Printable(series.label), kLegendRoom, kLegendFont);
}
/// What a legend or the names of bars have no room for; each once.
std::vector<std::string> CutNames(const Picture& picture) {
    std::vector<std::string> names;
    const auto add = [&](const std::string& name, const std::string& shown) {
        const bool cut = shown != Printable(name);
        if (cut && std::find(names.begin(), names.end(), name) == names.end()) names.push_back(name);
    };
    for (const Series& series : picture.series) add(series.label, LegendLabel(series));
    for (const PictureBar& bar : picture.bars) add(bar.label, BarLabel(bar));
    return names;
}

bool HasManyRows(const Series& series) {
    return series.style == SeriesStyle::ROWS && series.points.size() > kMarkedRows;
}

bool HasGreaterNumbers(const Series& series) {
    return std::any_of(series.points.begin(), series.points.end(), [](const PicturePoint& point) {
        return std::isfinite(point.x) && std::isfinite(point.y) && !IsDrawn(point);
    });
}

/// "set xtics ('0' 0, '50' 50)"
std::string TicksText(const char* axis, const AxisTicks& ticks) {
    if (ticks.ticks.empty()) return std::string("unset ") + axis + "tics";
    std::string text;
    for (const AxisTick& tick : ticks.ticks) {
        text += (text.empty() ? "" : ", ") + GnuplotText(tick.text) + " " + NumberText(tick.at);
    }
    return std::string("set ") + axis + "tics (" + text + ")";
}

}  // namespace

PictureScript::PictureScript(const Picture& picture, std::string data)
    : picture_(picture), data_(std::move(data)) {
    constexpr std::size_t kTitleLines = 2;
    const double room = kPictureWidth - 2.0 * kMargin;
    title_ = WrappedText(Printable(picture.title), room, kTitleFont, kTitleLines);
    what_ = WrappedText(Printable(picture.what), room, kWhatFont, kTitleLines);
    for (const std::string& note : picture.notes) AddNote(note);
    if (std::any_of(picture.series.begin(), picture.series.end(), HasManyRows)) {
        AddNote("Of more than " + std::to_string(kMarkedRows) + " rows not every one is marked.");
    }
    if (std::any_of(picture.series.begin(), picture.series.end(), HasGreaterNumbers)) {
        AddNote("Numbers beyond 1e300 are not drawn.");
    }
    for (const std::string& name : CutNames(picture)) AddNote("In full: " + name);
    for (const Series& series : picture.series) colors_ = std::max(colors_, series.color + 1);
}

void PictureScript::AddNote(const std::string& note) {
    constexpr std::size_t kNoteLines = 3;
    for (auto& line : WrappedText(Printable(note), kPictureWidth - 2.0 * kMargin, kNoteFont, kNoteLines)) {
        notes_.push_back(std::move(line));
    }
}

double PictureScript::Height() const {
    return Top() + (picture_.kind == PictureKind::BARS ? BarsHeight() : PlotHeight()) + kBelow + Foot();
}

std::string PictureScript::Text(double bottom, double sheetHeight) {
    bottom_ = bottom;
    sheetHeight_ = sheetHeight;
    Line("reset");
    Line("set encoding utf8");
    Words();
    switch (picture_.kind) {
        case PictureKind::CURVES:
            Curves();
            break;
        case PictureKind::BARS:
            Bars();
            break;
        case PictureKind::POLAR:
            Polar();
            break;
    }
    return std::move(text_);
}

double PictureScript::Top() const {
    return 14.0 + kTitleLine * static_cast<double>(title_.size() + what_.size()) + 12.0;
}

double PictureScript::Foot() const {
    return 14.0 + kNoteLine * static_cast<double>(notes_.size());
}

double PictureScript::PlotHeight() const {
    constexpr double kRound = 60.0;  // the angles around a polar picture
    const double plot = picture_.kind == PictureKind::POLAR ? kPlotHeight + kRound : kPlotHeight;
    return std::max(plot, LegendHeight());
}

double PictureScript::LegendHeight() const {
    const auto named = std::count_if(picture_.series.begin(), picture_.series.end(),
                                     [](const Series& series) { return !series.label.empty(); });
    return kLegendLine * static_cast<double>(named + 1);
}

double PictureScript::BarsHeight() const {
    constexpr double kBar = 26.0, kLeast = 90.0;
    return std::max(kLeast, kBar * static_cast<double>(picture_.bars.size()));
}

bool PictureScript::HasLegend() const {
    return std::any_of(picture_.series.begin(), picture_.series.end(),
                       [](const Series& series) { return !series.label.empty(); });
}

std::string PictureScript::ScreenX(double pixels) const {
    return ScriptNumber(pixels / kPictureWidth);
}
std::string PictureScript::ScreenY(double pixels) const {
    return ScriptNumber((bottom_ + pixels) / sheetHeight_);
}
std::string PictureScript::DataName(std::size_t series) const {
    return data_ + "s" + std::to_string(series);
}

void PictureScript::Block(const std::string& name, const std::vector<PicturePoint>& points) {
    Line(name + " << EOD");
    bool broken = true;
    for (const PicturePoint& point : points) {
        const bool shown = IsDrawn(point);
        if (shown) Line(NumberText(point.x) + " " + NumberText(point.y));
        if (!shown && !broken) Line("");
        broken = !shown;
    }
    Line("EOD");
}

void PictureScript::Label(const std::string& text, double x, double y, const char* how) {
    Line("set label " + GnuplotText(text) + " at screen " + ScreenX(x) + "," + ScreenY(y) + " " + how);
}

/// Title above, notes below.
void PictureScript::Words() {
    constexpr double kFirstLine = 26.0;
    double y = Height() - kFirstLine;
    for (const std::string& line : title_) {
        Label(line, kMargin, y, "left font 'sans-serif:Bold,15' front");
        y -= kTitleLine;
    }
    for (const std::string& line : what_) {
        Label(line, kMargin, y, "left font ',13' tc rgb '#444444' front");
        y -= kTitleLine;
    }
    y = Foot() - kNoteLine;
    for (const std::string& line : notes_) {
        Label(line, kMargin, y, "left font ',11' tc rgb '#444444' front");
        y -= kNoteLine;
    }
}

void PictureScript::Margins(double left, double right) {
    Line("set lmargin at screen " + ScreenX(left));
    Line("set rmargin at screen " + ScreenX(kPictureWidth - right));
    Line("set tmargin at screen " + ScreenY(Height() - Top()));
    Line("set bmargin at screen " + ScreenY(Foot() + kBelow));
}

void PictureScript::Frame() {
    Line("set border 3 lc rgb '#444444'");
    Line("set grid lc rgb '#dddddd' lt 1 lw 0.7");
    Line("set tics nomirror out scale 0.6");
}

void PictureScript::AxisX(const AxisTicks& axis) {
    Line(TicksText("x", axis));
    Line("set xlabel " + GnuplotText(AxisTitle(picture_.x, axis.exponent)));
}

/// With the title where it has room, whatever the ticks are.
void PictureScript::AxisY(const AxisTicks& axis) {
    Line(TicksText("y", axis));
    Line("set label " + GnuplotText(AxisTitle(picture_.y, axis.exponent)) + " at screen " +
         ScreenX(kMargin + kTickFont / 2.0) + ", graph 0.5 center rotate by 90");
}

void PictureScript::Legend() {
    if (!HasLegend()) {
        Line("set key off");
        return;
    }
    const double x = kPictureWidth - kLegendWidth + 8.0;
    Line("set key at screen " + ScreenX(x) + "," + ScreenY(Height() - Top() + 4.0) +
         " left top Left reverse vertical samplen 2.2 spacing 1.15 width -4 font ',11' maxrows " +
         std::to_string(picture_.series.size() + 1) +
         (picture_.legend.empty() ? "" : " title " + GnuplotText(picture_.legend) + " left"));
}

void PictureScript::Curves() {
    constexpr int kTicksX = 8, kTicksY = 7;
    const auto points = [&](double PicturePoint::*coordinate, bool fromZero) {
        return WithMargin(RangeOf(picture_, coordinate).value_or(kUnitRange), fromZero);
    };
    const PictureRange x = points(&PicturePoint::x, picture_.x.fromZero),
                       y = points(&PicturePoint::y, picture_.y.fromZero);
    for (std::size_t i = 0; i < picture_.series.size(); ++i) {
        Block(DataName(i), DrawnPoints(picture_.series[i].points, x));
    }
    const AxisTicks across = TicksOf(x, kTicksX), up = TicksOf(y, kTicksY);
    double widest = 0.0;
    for (const AxisTick& tick : up.ticks) widest = std::max(widest, TextWidth(tick.text, kTickFont));
    constexpr double kTitleAndTicks = kMargin + 2.0 * kTickFont + 16.0;
    Margins(std::max(kLeft, kTitleAndTicks + widest), HasLegend() ? kLegendWidth : kRight);
    Frame();
    AxisX(across);
    AxisY(up);
    Legend();
    Line(RangeText("x", x));
    Line(RangeText("y", y));
    if (y.lower < 0.0 && y.upper > 0.0)
        Line("set arrow from graph 0, first 0 to graph 1, first 0 nohead back lc rgb '#888888'");
    Plot({});
}

/// All series, after what is drawn below them.
void PictureScript::Plot(std::vector<std::string> parts) {
    for (std::size_t i = 0; i < picture_.series.size(); ++i) {
        const Series& series = picture_.series[i];
        const std::string title =
            series.label.empty() ? std::string("notitle") : "title " + GnuplotText(LegendLabel(series));
        parts.push_back(DataName(i) + " using 1:2 " + Style(series) + " " + title);
    }
    if (parts.empty()) parts.emplace_back("1/0 notitle");
    std::string plot = "plot ";
    for (std::size_t i = 0; i < parts.size(); ++i) plot += (i > 0 ? ", \\\n     " : "") + parts[i];
    Line(plot);
}

std::string PictureScript::Style(const Series& series) const {
    const std::string color = "lc rgb '" + SeriesColor(series.color, colors_, picture_.graded) + "'";
    const std::string mark = " pt " + std::to_string(SeriesMark(series.color));
    const auto every = [&](std::size_t marks) {
        return std::to_string(std::max<std::size_t>(1, series.points.size() / marks));
    };
    constexpr std::size_t kMarksOnACurve = 8, kMarksOnManyRows = 30;
    switch (series.style) {
        case SeriesStyle::LINE:
            return "with linespoints " + color + " lw 2" + mark + " ps 0.6 pi -" + every(kMarksOnACurve);
        case SeriesStyle::PLAIN:
            return "with lines " + color + " lw 2";
        case SeriesStyle::DASHED:
            return "with lines " + color + " lw 1.6 dt (6,5)";
        case SeriesStyle::POINTS:
            return "with points " + color + mark + " ps 0.8";
        case SeriesStyle::ROWS:
            return "with linespoints " + color + " lw 1.6" + mark + " ps 0.8" +
                   (HasManyRows(series) ? " pi " + every(kMarksOnManyRows) : "");
        case SeriesStyle::LIMIT:
            return "with points " + color + " pt 2 ps 1.6 lw 2";
    }
    return {};
}

}  // namespace zelmat
