#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/pictures/AxisTicks.h"
#include "zelmat/pictures/Picture.h"
#include "zelmat/pictures/PictureRange.h"

namespace zelmat {

/// Width of every picture in pixels of an SVG; other forms are to scale.
constexpr double kPictureWidth = 860.0;

/// The part of a script for gnuplot 5.4 that draws one picture: its data, its words and its curves. Where
/// everything stands is decided here, so that no word is cut and none lies on another. `data`: how the names
/// of its data blocks begin, "$p1n0".
class PictureScript {
public:
    PictureScript(const Picture& picture, std::string data);

    double Height() const;  ///< pixels

    /// The commands, for a picture whose lower edge lies so many pixels above that of its sheet.
    std::string Text(double bottom, double sheetHeight);

private:
    void AddNote(const std::string& note);
    double Top() const;
    double Foot() const;
    double PlotHeight() const;
    double BarsHeight() const;
    double LegendHeight() const;
    bool HasLegend() const;

    void Line(const std::string& line) { text_ += line + '\n'; }
    void Block(const std::string& name, const std::vector<PicturePoint>& points);
    void Label(const std::string& text, double x, double y, const char* how);
    std::string ScreenX(double pixels) const;
    std::string ScreenY(double pixels) const;  ///< above the picture's lower edge
    std::string DataName(std::size_t series) const;

    void Words();
    void Margins(double left, double right);
    void Frame();
    void AxisX(const AxisTicks& axis);
    void AxisY(const AxisTicks& axis);
    void Legend();
    void Curves();
    void Bars();   // BarsScript.cpp
    void Polar();  // PolarScript.cpp
    std::vector<std::string> PolarGrid(const AxisTicks& axis);
    void Plot(std::vector<std::string> parts);
    std::string Style(const Series& series) const;

    const Picture& picture_;
    std::string data_;
    std::vector<std::string> title_, what_, notes_;
    std::size_t colors_ = 1;
    double bottom_ = 0.0, sheetHeight_ = 0.0;
    std::string text_;
};

}  // namespace zelmat
