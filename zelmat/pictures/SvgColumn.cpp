#include "zelmat/pictures/SvgColumn.h"

#include <algorithm>

#include "zelmat/quantities/NumberText.h"
#include "zelmat/quantities/ReadNumber.h"

namespace zelmat {

namespace {

constexpr std::string_view kElement = "<svg";

double Size(const std::string& svg, const char* attribute) {
    const auto size = ReadNumber(SvgAttribute(svg, attribute));
    return size ? *size : 0.0;
}

}  // namespace

std::string SvgAttribute(const std::string& svg, const std::string& attribute) {
    const std::string begin = " " + attribute + "=\"";
    const std::size_t element = svg.find(kElement);
    const std::size_t end = svg.find('>', element);
    const std::size_t from = svg.find(begin, element);
    if (from >= end) return {};
    const std::size_t value = from + begin.size();
    return svg.substr(value, svg.find('"', value) - value);
}

std::string SvgColumn(const std::vector<std::string>& svgs) {
    double width = 0.0, height = 0.0;
    std::string parts;
    for (const std::string& svg : svgs) {
        const std::size_t after = svg.find(kElement) + kElement.size();
        parts += std::string(kElement) + " x=\"0\" y=\"" + NumberText(height) + "\"" + svg.substr(after);
        width = std::max(width, Size(svg, "width"));
        height += Size(svg, "height");
    }
    const std::string wide = NumberText(width), high = NumberText(height);
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" +
           wide + "\" height=\"" + high + "\" viewBox=\"0 0 " + wide + " " + high +
           "\">\n<rect width=\"100%\" height=\"100%\" fill=\"#ffffff\"/>\n" + parts + "</svg>\n";
}

}  // namespace zelmat
