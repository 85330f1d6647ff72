#include "zelmat/text/QuotedText.h"

#include <gtest/gtest.h>

namespace {

using zelmat::QuotedText;

TEST(QuotedText, KeepsLettersOfEveryAlphabet) {
    EXPECT_EQ(QuotedText("µm/m/K °C 日 𝄞"), "'µm/m/K °C 日 𝄞'");
}

TEST(QuotedText, ShowsWhatATerminalWouldObeyAsText) {
    EXPECT_EQ(QuotedText("a\nb\x1b[2J\x7f"), "'a\\nb\\x1b[2J\\x7f'");
    EXPECT_EQ(QuotedText("\u202e"), "'\\u202e'");
    EXPECT_EQ(QuotedText("S\xff"), "'S\uFFFD'");
}

TEST(QuotedText, CutsLongTexts) {
    EXPECT_EQ(QuotedText(std::string(60, 'm')), "'" + std::string(60, 'm') + "'");
    EXPECT_EQ(QuotedText(std::string(61, 'm')), "'" + std::string(60, 'm') + "...'");
}

TEST(QuotedText, CutsNoCharacterInTwo) {
    EXPECT_EQ(QuotedText(std::string(59, 'm') + "µµ"), "'" + std::string(59, 'm') + "...'");
    EXPECT_EQ(QuotedText(std::string(57, 'm') + "𝄞𝄞"), "'" + std::string(57, 'm') + "...'");
    EXPECT_EQ(QuotedText(std::string(58, 'm') + "µµ"), "'" + std::string(58, 'm') + "µ...'");
}

}  // namespace
