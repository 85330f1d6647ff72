#pragma once

#include <string>
#include <vector>

namespace zelmat {

/// Pictures below each other as one SVG, each as wide and as high as it is, from the left edge. The
/// identifiers in them stay: no more than one of them may have any. Each is a whole SVG that the house has
/// drawn.
std::string SvgColumn(const std::vector<std::string>& svgs);

/// The value of an attribute of a picture's first element: "860" of `width`; empty without one.
std::string SvgAttribute(const std::string& svg, const std::string& attribute);

}  // namespace zelmat
