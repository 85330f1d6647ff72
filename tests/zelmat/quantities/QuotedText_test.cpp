#include "zelmat/quantities/QuotedText.h"

#include <gtest/gtest.h>

namespace zelmat {
namespace {

TEST(QuotedText, KeepsLettersOfEveryAlphabet) {
    EXPECT_EQ(QuotedText("µm/m/K °C 日 𝄞"), "'µm/m/K °C 日 𝄞'");
}

TEST(QuotedText, ShowsControlCharactersAndBrokenBytesAsNumbers) {
    EXPECT_EQ(QuotedText("a\nb\x1b[2J\x7f"), "'a\\x0ab\\x1b[2J\\x7f'");
    EXPECT_EQ(QuotedText("\xc0\x80 \xff \xc2"), "'\\xc0\\x80 \\xff \\xc2'");
    EXPECT_EQ(QuotedText("\xc2\x85"), "'\\xc2\\x85'");                    // next line, a control character
    EXPECT_EQ(QuotedText("\xe2\x80\xae"), "'\\xe2\\x80\\xae'");           // right-to-left override
    EXPECT_EQ(QuotedText("\xed\xa0\x80"), "'\\xed\\xa0\\x80'");           // half of a surrogate pair
    EXPECT_EQ(QuotedText("\xf4\x90\x80\x80"), "'\\xf4\\x90\\x80\\x80'");  // beyond U+10FFFF
}

TEST(QuotedText, CutsLongTexts) {
    EXPECT_EQ(QuotedText(std::string(61, 'm')), "'" + std::string(60, 'm') + "...'");
    EXPECT_EQ(QuotedText(std::string(60, 'm')), "'" + std::string(60, 'm') + "'");
}

}  // namespace
}  // namespace zelmat
