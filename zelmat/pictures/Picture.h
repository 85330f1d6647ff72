#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace zelmat {

struct PicturePoint {
    double x, y;  ///< in the units of the axes; a y that is not a number breaks a line
};

enum class SeriesStyle {
    LINE,    ///< a curve of a formula, with a mark here and there
    PLAIN,   ///< the same beside points of its colour
    DASHED,  ///< the same where it does not hold: unstable, outside
    POINTS,  ///< measured or given, nothing between
    ROWS,    ///< the rows of a table, with lines between
    LIMIT,   ///< where something ends: a cross
};

/// Points that belong together.
struct Series {
    std::string label;  ///< in the legend; empty: not there
    SeriesStyle style = SeriesStyle::LINE;
    std::size_t color = 0;  ///< those of one number have one colour and one mark
    std::vector<PicturePoint> points = {};
};

/// What an axis measures, in which unit.
struct PictureAxis {
    std::string title;
    std::string unit = "-";  ///< as units are spelled; "-": none
    bool fromZero = false;   ///< begins at 0 where nothing is negative
};

/// A bar of a ranking or a comparison.
struct PictureBar {
    std::string label;
    double value;
};

enum class PictureKind {
    CURVES,
    BARS,   ///< across, the first one at the top
    POLAR,  ///< x is an angle in degrees, y a length from the middle
};

/// A picture as plain data: what it shows, not how it is drawn. All texts may be foreign.
struct Picture {
    std::string name;   ///< of its file, without ending: "elastic-youngs_modulus"
    std::string title;  ///< whose picture it is
    std::string what;   ///< "Young's modulus over temperature"
    PictureKind kind = PictureKind::CURVES;
    PictureAxis x = {}, y = {};
    std::string legend = {};  ///< what the labels name: "temperature"
    bool graded = false;      ///< the series have an order, which their colours follow
    std::vector<Series> series = {};
    std::vector<PictureBar> bars = {};
    std::vector<std::string> notes = {};  ///< below the picture: sources, what was left out
};

/// Whose picture it is, for descriptions: of a long name the beginning, as somebody would read it out.
std::string SpokenName(const std::string& name);

/// For those who do not see it: what is drawn, over which range, of how many series.
std::string Description(const Picture& picture);

}  // namespace zelmat
