#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "zelmat/layups/PlyHatching.h"

namespace zelmat {

/// An SVG picture that grows shape by shape, in pixels from the upper left corner. Attributes are written as
/// they are given, texts whatever they hold.
class SvgSheet {
public:
    void Rectangle(const PictureBox& box, const std::string& attributes);
    void Path(const std::string& data, const std::string& attributes);
    void Line(double x1, double y1, double x2, double y2, const std::string& attributes);
    void Circle(double x, double y, double radius, const std::string& attributes);
    /// From one point to another, with a head there.
    void Arrow(double x1, double y1, double x2, double y2);
    void Text(double x, double y, const std::string& attributes, const std::string& text);
    /// Line under line.
    void Texts(double x, double y, double step, const std::string& attributes,
               const std::vector<std::string>& lines);

    /// The whole picture, on white. `title` is what a reader who does not see it is told.
    std::string Finished(double width, double height, const std::string& title) const;

private:
    std::ostringstream shapes_;
};

}  // namespace zelmat
