#include "zelmat/pictures/SvgColumn.h"

#include <gtest/gtest.h>

namespace {

using zelmat::SvgAttribute;
using zelmat::SvgColumn;

TEST(SvgColumn, PutsPicturesBelowEachOther) {
    const std::string first = "<?xml version=\"1.0\"?>\n<svg width=\"30\" height=\"20\">\n<a/></svg>\n";
    const std::string second = "<svg \n width=\"40\" height=\"10.5\"><b/></svg>\n";

    EXPECT_EQ(
        SvgColumn({first, second}),
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"40\" height=\"30.5\" viewBox=\"0 0 40 30.5\">\n"
        "<rect width=\"100%\" height=\"100%\" fill=\"#ffffff\"/>\n"
        "<svg x=\"0\" y=\"0\" width=\"30\" height=\"20\">\n<a/></svg>\n"
        "<svg x=\"0\" y=\"20\" \n width=\"40\" height=\"10.5\"><b/></svg>\n"
        "</svg>\n");
}

TEST(SvgColumn, ReadsTheAttributesOfTheFirstElementAlone) {
    const std::string svg = "<svg viewBox=\"0 0 3 4\"><rect width=\"7\"/></svg>";

    EXPECT_EQ(SvgAttribute(svg, "viewBox"), "0 0 3 4");
    EXPECT_EQ(SvgAttribute(svg, "width"), "");
}

}  // namespace
