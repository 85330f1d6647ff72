#include "zelmat/pictures/GnuplotText.h"

#include <gtest/gtest.h>

namespace {

using zelmat::GnuplotText;
using zelmat::TitleWithUnit;
using zelmat::WrittenUnit;

TEST(GnuplotText, StandsInSingleQuotesWithoutOneInside) {
    EXPECT_EQ(GnuplotText("Young's modulus"), "'Young’s modulus'");
    EXPECT_EQ(GnuplotText("''"), "'’’'");
    EXPECT_EQ(GnuplotText("`id` $(id) @x %g {/b y} \\n"), "'`id` $(id) @x %g {/b y} \\n'");
}

TEST(GnuplotText, IsOneLineOfPrintableCharacters) {
    EXPECT_EQ(GnuplotText("a\nset output 'b'\r\tc"), "'a set output ’b’  c'");
    EXPECT_EQ(GnuplotText(std::string("a\0b\x1b", 4)), "'a\\x00b\\x1b'");
    EXPECT_EQ(GnuplotText("\xff\xef\xbf\xbf"), "'\xef\xbf\xbd\xef\xbf\xbd'");
}

TEST(GnuplotText, BreaksUpTheEndOfCharacterData) {
    EXPECT_EQ(GnuplotText("]]> ]]]>"), "']] > ]]] >'");
}

TEST(GnuplotText, WritesUnitsAsReadersDo) {
    EXPECT_EQ(WrittenUnit("degC"), "°C");
    EXPECT_EQ(WrittenUnit("kg/m3"), "kg/m³");
    EXPECT_EQ(WrittenUnit("W/(m K)"), "W/(m K)");
    EXPECT_EQ(TitleWithUnit("temperature", "degF"), "temperature [°F]");
    EXPECT_EQ(TitleWithUnit("stretch", "-"), "stretch");
}

}  // namespace
