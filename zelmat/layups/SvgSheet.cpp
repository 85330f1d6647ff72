#include "zelmat/layups/SvgSheet.h"

#include <cmath>

#include "zelmat/text/XmlText.h"

namespace zelmat {

void SvgSheet::Rectangle(const PictureBox& box, const std::string& attributes) {
    shapes_ << "  <rect x=\"" << Pixels(box.left) << "\" y=\"" << Pixels(box.top) << "\" width=\""
            << Pixels(box.width) << "\" height=\"" << Pixels(box.height) << "\" " << attributes << "/>\n";
}

void SvgSheet::Path(const std::string& data, const std::string& attributes) {
    shapes_ << "  <path d=\"" << data << "\" " << attributes << "/>\n";
}

void SvgSheet::Line(double x1, double y1, double x2, double y2, const std::string& attributes) {
    shapes_ << "  <line x1=\"" << Pixels(x1) << "\" y1=\"" << Pixels(y1) << "\" x2=\"" << Pixels(x2)
            << "\" y2=\"" << Pixels(y2) << "\" " << attributes << "/>\n";
}

void SvgSheet::Circle(double x, double y, double radius, const std::string& attributes) {
    shapes_ << "  <circle cx=\"" << Pixels(x) << "\" cy=\"" << Pixels(y) << "\" r=\"" << Pixels(radius)
            << "\" " << attributes << "/>\n";
}

void SvgSheet::Arrow(double x1, double y1, double x2, double y2) {
    constexpr double kHead = 8.0, kHalfHead = 3.0;
    const double length = std::hypot(x2 - x1, y2 - y1);
    const double alongX = (x2 - x1) / length, alongY = (y2 - y1) / length;
    const double neckX = x2 - kHead * alongX, neckY = y2 - kHead * alongY;
    Line(x1, y1, neckX, neckY, "stroke=\"#222\"");
    Path("M" + Pixels(x2) + ' ' + Pixels(y2) + 'L' + Pixels(neckX - kHalfHead * alongY) + ' ' +
             Pixels(neckY + kHalfHead * alongX) + 'L' + Pixels(neckX + kHalfHead * alongY) + ' ' +
             Pixels(neckY - kHalfHead * alongX) + 'Z',
         "fill=\"#222\"");
}

void SvgSheet::Text(double x, double y, const std::string& attributes, const std::string& text) {
    shapes_ << "  <text x=\"" << Pixels(x) << "\" y=\"" << Pixels(y) << '"' << (attributes.empty() ? "" : " ")
            << attributes << '>' << XmlText(text) << "</text>\n";
}

void SvgSheet::Texts(double x, double y, double step, const std::string& attributes,
                     const std::vector<std::string>& lines) {
    for (const std::string& line : lines) {
        Text(x, y, attributes, line);
        y += step;
    }
}

std::string SvgSheet::Finished(double width, double height, const std::string& title) const {
    const std::string size[] = {Pixels(width), Pixels(height)};
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" +
           size[0] + "\" height=\"" + size[1] + "\" viewBox=\"0 0 " + size[0] + ' ' + size[1] +
           "\" role=\"img\" font-family=\"Helvetica, Arial, sans-serif\" font-size=\"12\" fill=\"#222\">\n"
           "  <title>" +
           XmlText(title) + "</title>\n  <rect width=\"100%\" height=\"100%\" fill=\"white\"/>\n" +
           shapes_.str() + "</svg>\n";
}

}  // namespace zelmat
