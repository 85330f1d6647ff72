#include "zelmat/pictures/GnuplotScript.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "zelmat/pictures/GnuplotText.h"
#include "zelmat/pictures/PictureColors.h"
#include "zelmat/pictures/PictureRange.h"
#include "zelmat/quantities/NumberText.h"
#include "zelmat/text/Printable.h"
#include "zelmat/text/WrappedText.h"

namespace zelmat {

namespace {

// Pixels of an SVG; the other formats are to scale.
constexpr double kWidth = 860.0;
constexpr double kPlotHeight = 380.0;
constexpr double kLeft = 112.0;
constexpr double kBelow = 58.0;  ///< ticks and title of the axis x
constexpr double kLegendWidth = 250.0;
constexpr double kLegendRoom = 205.0;  ///< for a label
constexpr double kRight = 30.0;
constexpr double kNoteLine = 14.0;
constexpr double kTitleLine = 19.0;
constexpr double kNoteFont = 10.0;
constexpr double kWhatFont = 13.0;
constexpr double kBarsLeft = 330.0;
constexpr double kBarLabelRoom = kBarsLeft - 40.0;
constexpr double kLegendFont = 11.0;

/// One picture of a sheet.
class PictureScript {
public:
    PictureScript(const Picture& picture, std::string data) : picture_(picture), data_(std::move(data)) {
        constexpr double kTitleFont = 15.0 * 1.1, kMargins = 40.0;
        constexpr std::size_t kTitleLines = 2, kNoteLines = 3;
        title_ = WrappedText(Printable(picture.title), kWidth - kMargins, kTitleFont, kTitleLines);
        what_ = WrappedText(Printable(picture.what), kWidth - kMargins, kWhatFont, kTitleLines);
        const auto addNote = [&](const std::string& note) {
            for (auto& line : WrappedText(Printable(note), kWidth - kMargins, kNoteFont, kNoteLines)) {
                notes_.push_back(std::move(line));
            }
        };
        for (const std::string& note : picture.notes) addNote(note);
        for (const std::string& name : CutNames()) addNote("In full: " + name);
        for (const Series& series : picture.series) colors_ = std::max(colors_, series.color + 1);
    }

    double Height() const {
        return Top() + (picture_.kind == PictureKind::BARS ? BarsHeight() : PlotHeight()) + kBelow + Foot();
    }

    /// The script, for a picture whose lower edge lies so many pixels above that of the sheet.
    std::string Text(double bottom, double sheetHeight) {
        bottom_ = bottom;
        sheetHeight_ = sheetHeight;
        Data();
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

private:
    static std::string LegendLabel(const Series& series) {
        return WrappedText(Printable(series.label), kLegendRoom, kLegendFont, 1).front();
    }
    static std::string BarLabel(const PictureBar& bar) {
        return WrappedText(Printable(bar.label), kBarLabelRoom, kLegendFont, 1).front();
    }

    /// What a legend or the names of bars have no room for; each once.
    std::vector<std::string> CutNames() const {
        std::vector<std::string> names;
        const auto add = [&](const std::string& name, const std::string& shown) {
            const bool cut = shown.ends_with("…") && shown != Printable(name);
            if (cut && std::find(names.begin(), names.end(), name) == names.end()) names.push_back(name);
        };
        for (const Series& series : picture_.series) add(series.label, LegendLabel(series));
        for (const PictureBar& bar : picture_.bars) add(bar.label, BarLabel(bar));
        return names;
    }

    static std::string Number(double value) {
        constexpr int kDigits = 9;
        return NumberText(RoundedTo(value, kDigits));
    }
    void Line(const std::string& line) { text_ += line + '\n'; }

    double Top() const {
        return 14.0 + kTitleLine * static_cast<double>(title_.size() + what_.size()) + 12.0;
    }
    double Foot() const { return 14.0 + kNoteLine * static_cast<double>(notes_.size()); }
    double PlotHeight() const {
        return picture_.kind == PictureKind::POLAR ? kPlotHeight + 60.0 : kPlotHeight;
    }
    double BarsHeight() const {
        constexpr double kBar = 26.0, kLeast = 90.0;
        return std::max(kLeast, kBar * static_cast<double>(picture_.bars.size()));
    }
    bool HasLegend() const {
        return std::any_of(picture_.series.begin(), picture_.series.end(),
                           [](const Series& series) { return !series.label.empty(); });
    }

    std::string ScreenX(double pixels) const { return Number(pixels / kWidth); }
    /// `pixels` above the picture's lower edge.
    std::string ScreenY(double pixels) const { return Number((bottom_ + pixels) / sheetHeight_); }

    std::string DataName(std::size_t series) const { return data_ + "s" + std::to_string(series); }

    void Block(const std::string& name, const std::vector<PicturePoint>& points) {
        Line(name + " << EOD");
        bool broken = true;
        for (const PicturePoint& point : points) {
            const bool shown = std::isfinite(point.x) && std::isfinite(point.y);
            if (shown) Line(NumberText(point.x) + " " + NumberText(point.y));
            if (!shown && !broken) Line("");
            broken = !shown;
        }
        Line("EOD");
    }

    void Data() {
        for (std::size_t i = 0; i < picture_.series.size(); ++i) {
            const Series& series = picture_.series[i];
            Block(DataName(i), picture_.kind == PictureKind::POLAR ? Turned(series.points) : series.points);
        }
    }

    static std::vector<PicturePoint> Turned(std::vector<PicturePoint> points) {
        for (PicturePoint& point : points) {
            const double angle = point.x * std::numbers::pi / 180.0;
            point = {point.y * std::cos(angle), point.y * std::sin(angle)};
        }
        return points;
    }

    void Label(const std::string& text, double x, double y, const char* how) {
        Line("set label " + GnuplotText(text) + " at screen " + ScreenX(x) + "," + ScreenY(y) + " " + how);
    }

    /// Title above, notes below.
    void Words() {
        constexpr double kMargin = 20.0;
        double y = Height() - 26.0;
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
            Label(line, kMargin, y, "left font ',10' tc rgb '#444444' front");
            y -= kNoteLine;
        }
    }

    void Margins(double left, double right) {
        Line("set lmargin at screen " + ScreenX(left));
        Line("set rmargin at screen " + ScreenX(kWidth - right));
        Line("set tmargin at screen " + ScreenY(Height() - Top()));
        Line("set bmargin at screen " + ScreenY(Foot() + kBelow));
    }

    void Axes() {
        Line("set border 3 lc rgb '#444444'");
        Line("set grid lc rgb '#dddddd' lt 1 lw 0.7");
        Line("set tics nomirror out scale 0.6");
        Line("set format '%g'");
        Line("set xlabel " + GnuplotText(TitleWithUnit(picture_.x.title, picture_.x.unit)));
        Line("set ylabel " + GnuplotText(TitleWithUnit(picture_.y.title, picture_.y.unit)));
    }

    void Legend() {
        if (!HasLegend()) {
            Line("set key off");
            return;
        }
        const double x = kWidth - kLegendWidth + 8.0;
        Line("set key at screen " + ScreenX(x) + "," + ScreenY(Height() - Top() + 4.0) +
             " left top Left reverse vertical samplen 2.2 spacing 1.15 width -4 font ',11' maxrows 30" +
             (picture_.legend.empty() ? "" : " title " + GnuplotText(picture_.legend) + " left"));
    }

    void Range(const char* axis, const PictureRange& range) {
        Line(std::string("set ") + axis + "range [" + NumberText(range.lower) + ":" +
             NumberText(range.upper) + "]");
    }

    void Curves() {
        Margins(kLeft, HasLegend() ? kLegendWidth : kRight);
        Axes();
        Legend();
        const auto x = RangeOf(picture_, &PicturePoint::x), y = RangeOf(picture_, &PicturePoint::y);
        Range("x", WithMargin(x.value_or(PictureRange{0.0, 1.0}), picture_.x.fromZero));
        Range("y", WithMargin(y.value_or(PictureRange{0.0, 1.0}), picture_.y.fromZero));
        const auto shown = y ? WithMargin(*y, picture_.y.fromZero) : PictureRange{0.0, 1.0};
        if (shown.lower < 0.0 && shown.upper > 0.0)
            Line("set arrow from graph 0, first 0 to graph 1, first 0 nohead back lc rgb '#888888'");
        Plot({});
    }

    /// All series, after what is drawn below them.
    void Plot(std::vector<std::string> parts) {
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

    std::string Style(const Series& series) const {
        const std::string color = "lc rgb '" + SeriesColor(series.color, colors_, picture_.graded) + "'";
        const std::string mark = " pt " + std::to_string(SeriesMark(series.color));
        constexpr std::size_t kMarksOnACurve = 8;
        const std::size_t every = std::max<std::size_t>(1, series.points.size() / kMarksOnACurve);
        switch (series.style) {
            case SeriesStyle::LINE:
                return "with linespoints " + color + " lw 2" + mark + " ps 0.6 pi -" + std::to_string(every);
            case SeriesStyle::PLAIN:
                return "with lines " + color + " lw 2";
            case SeriesStyle::DASHED:
                return "with lines " + color + " lw 1.6 dt (6,5)";
            case SeriesStyle::POINTS:
                return "with points " + color + mark + " ps 0.8";
            case SeriesStyle::ROWS:
                return "with linespoints " + color + " lw 1.6" + mark + " ps 0.8";
            case SeriesStyle::LIMIT:
                return "with points " + color + " pt 2 ps 1.6 lw 2";
        }
        return {};
    }

    void Bars() {
        constexpr double kForValues = 90.0;
        Margins(kBarsLeft, kForValues);
        Axes();
        Line("unset ylabel");
        Line("unset grid");
        Line("set grid x lc rgb '#dddddd' lt 1 lw 0.7");
        Line("set key off");
        std::string tics = "set ytics scale 0 font ',11' (";
        Line(data_ + "b << EOD");
        double greatest = 0.0, least = 0.0;
        const std::size_t count = picture_.bars.size();
        for (std::size_t i = 0; i < count; ++i) {
            const PictureBar& bar = picture_.bars[i];
            const std::string place = std::to_string(count - i);
            Line("0 " + place + " 0 " + NumberText(bar.value) + " " + place);
            tics += (i > 0 ? ", " : "") + GnuplotText(BarLabel(bar)) + " " + place;
            greatest = std::max(greatest, bar.value);
            least = std::min(least, bar.value);
        }
        Line("EOD");
        Line(tics + ")");
        for (std::size_t i = 0; i < count; ++i) {
            constexpr int kDigits = 4;
            const double value = picture_.bars[i].value;
            Line("set label " + GnuplotText(RoundedText(value, kDigits)) + " at " +
                 NumberText(std::max(value, 0.0)) + "," + std::to_string(count - i) +
                 " left offset character 0.7,0 font ',11'");
        }
        Range("x", {least < 0.0 ? 1.05 * least : 0.0, greatest > 0.0 ? 1.05 * greatest : 1.0});
        Range("y", {0.4, static_cast<double>(count) + 0.6});
        Line("set style fill solid 0.85 noborder");
        Line("plot " + data_ + "b using (0.5*$4):2:3:4:($2-0.32):($2+0.32) with boxxyerror lc rgb '" +
             SeriesColor(0, 1, false) + "' notitle");
    }

    /// Circles and rays of our own, so that the two directions have one scale.
    void Polar() {
        const auto range = RangeOf(picture_, &PicturePoint::y);
        const double reach = range && range->upper > 0.0 ? range->upper : 1.0;
        const double step = RoundStep(reach / 4.0);
        const double edge = step * std::ceil(reach / step);
        // A square between the left edge and the legend.
        const double room = kWidth - kLegendWidth - PlotHeight();
        Margins(room / 2.0, kLegendWidth + room / 2.0);
        Line("unset border");
        Line("unset tics");
        Legend();
        Range("x", {-1.16 * edge, 1.16 * edge});
        Range("y", {-1.16 * edge, 1.16 * edge});
        Line("set parametric");
        Line("set trange [0:2*pi]");
        Line("set samples 181");
        std::vector<std::string> parts;
        for (int circle = 1; circle * step <= edge * 1.001; ++circle) {
            const std::string radius = RoundedText(circle * step, 6);
            parts.push_back(radius + "*cos(t)," + radius +
                            "*sin(t) with lines lc rgb '#cccccc' lw 0.7 notitle");
            Line("set label " + GnuplotText(radius) + " at " + NumberText(circle * step * std::cos(1.309)) +
                 "," + NumberText(circle * step * std::sin(1.309)) +
                 " center font ',10' tc rgb '#555555' front");
        }
        constexpr int kRay = 30;
        for (int angle = 0; angle < 360; angle += kRay) {
            const double x = std::cos(angle * std::numbers::pi / 180.0),
                         y = std::sin(angle * std::numbers::pi / 180.0);
            Line("set arrow from 0,0 to " + Number(edge * x) + "," + Number(edge * y) +
                 " nohead back lc rgb '#cccccc' lw 0.7");
            Line("set label '" + std::to_string(angle) + "°' at " + Number(1.09 * edge * x) + "," +
                 Number(1.09 * edge * y) + " center font ',11'");
        }
        Line("set xlabel " + GnuplotText(TitleWithUnit(picture_.y.title, picture_.y.unit)));
        Plot(std::move(parts));
    }

    static double RoundStep(double step) {
        const double power = std::pow(10.0, std::floor(std::log10(step)));
        for (const double factor : {1.0, 2.0, 5.0}) {
            if (factor * power >= step) return factor * power;
        }
        return 10.0 * power;
    }

    const Picture& picture_;
    std::string data_;  // "$p1"
    std::vector<std::string> title_, what_, notes_;
    std::size_t colors_ = 1;
    double bottom_ = 0.0, sheetHeight_ = 0.0;
    std::string text_;
};

std::string Terminal(PictureFormat format, double height) {
    const auto size = [](double value) { return NumberText(std::round(value)); };
    switch (format) {
        case PictureFormat::SVG:
            return "set terminal svg size " + size(kWidth) + "," + size(height) +
                   " fixed noenhanced font 'sans-serif,12' background '#ffffff'";
        case PictureFormat::PNG:
            return "set terminal pngcairo size " + size(2.0 * kWidth) + "," + size(2.0 * height) +
                   " noenhanced fontscale 1.5 linewidth 2 pointscale 1.6 font 'sans-serif,12' background "
                   "'#ffffff'";
        case PictureFormat::PDF: {
            constexpr double kPixelsAnInch = 100.0;
            return "set terminal pdfcairo size " + NumberText(RoundedTo(kWidth / kPixelsAnInch, 4)) + "," +
                   NumberText(RoundedTo(height / kPixelsAnInch, 4)) +
                   " noenhanced fontscale 0.72 linewidth 1 font 'sans-serif,12' background '#ffffff'";
        }
    }
    return {};
}

void AddSheet(std::string& script, const PictureSheet& sheet, std::size_t number, PictureFormat format) {
    std::vector<PictureScript> pictures;
    double whole = 0.0, tallest = 0.0;
    for (const Picture* picture : sheet.pictures) {
        const std::string data = "$p" + std::to_string(number) + "n" + std::to_string(pictures.size());
        pictures.emplace_back(*picture, data);
        whole += pictures.back().Height();
        tallest = std::max(tallest, pictures.back().Height());
    }
    const bool pages = format == PictureFormat::PDF;
    const double height = pages ? tallest : whole;
    script += Terminal(format, height) + "\nset output '" + sheet.file + "'\n";
    if (!pages && pictures.size() > 1) script += "set multiplot\n";
    double bottom = height;
    for (PictureScript& picture : pictures) {
        bottom = (pages ? height : bottom) - picture.Height();
        script += picture.Text(bottom, height);
    }
    if (!pages && pictures.size() > 1) script += "unset multiplot\n";
    script += "unset output\n\n";
}

}  // namespace

const char* Ending(PictureFormat format) {
    switch (format) {
        case PictureFormat::SVG:
            return ".svg";
        case PictureFormat::PDF:
            return ".pdf";
        case PictureFormat::PNG:
            return ".png";
    }
    return "";
}

std::string GnuplotScript(const std::vector<PictureSheet>& sheets, PictureFormat format) {
    std::string script = "# A script for gnuplot 5.4: gnuplot -d THIS_FILE\n";
    for (std::size_t i = 0; i < sheets.size(); ++i) AddSheet(script, sheets[i], i + 1, format);
    return script;
}

}  // namespace zelmat
