#include "zelmat/exchange/DeckText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>

namespace {

using zelmat::AsciiLine;
using zelmat::CommentLines;
using zelmat::DeckName;
using zelmat::DeckNumber;

TEST(DeckText, WritesANumberAsShortAsItReadsBack) {
    EXPECT_EQ(DeckNumber(2.1e11), "2.1e+11");
    EXPECT_EQ(DeckNumber(0.3), "0.3");
    EXPECT_EQ(DeckNumber(-7850.0), "-7850");
    EXPECT_EQ(DeckNumber(0.0), "0");
}

TEST(DeckText, LeavesOutDigitsBeforeTheExponentWhereANumberHasMoreThanTwentyCharacters) {
    EXPECT_EQ(DeckNumber(7.851234567890123e-09), "7.85123456789012e-09");
    EXPECT_EQ(DeckNumber(-7.851234567890123e-09), "-7.8512345678901e-09");
    EXPECT_EQ(DeckNumber(-1.2345678901234567e-105), "-1.234567890123e-105");
}

TEST(DeckText, ChangesNoNumberByAPartOfMoreThanOneInATrillion) {
    double size = 1.2345678901234567e-300;
    for (int step = 0; step < 150; ++step, size *= 7777.7777777) {
        for (const double number : {size, -size}) {
            const std::string text = DeckNumber(number);
            EXPECT_LE(text.size(), 20U) << text;
            EXPECT_LT(std::fabs(std::strtod(text.c_str(), nullptr) / number - 1.0), 1e-12) << text;
        }
    }
}

TEST(DeckText, GivesRealNumbersAPoint) {
    EXPECT_EQ(zelmat::RealDeckNumber(1.0), "1.");
    EXPECT_EQ(zelmat::RealDeckNumber(1e30), "1e+30");
    EXPECT_EQ(zelmat::RealDeckNumber(0.5), "0.5");
}

TEST(DeckText, KeepsTheGreatestNumberANumber) {
    EXPECT_EQ(DeckNumber(1.7976931348623157e308), "1.7976931348623e+308");
    EXPECT_EQ(DeckNumber(-1.7976931348623157e308), "-1.797693134862e+308");
}

TEST(DeckText, GivesNoRealNumberMoreThanTwentyCharacters) {
    EXPECT_EQ(zelmat::RealDeckNumber(12345678901234567168.0), "1.234567890123e+19");
    EXPECT_EQ(zelmat::RealDeckNumber(-1234567890123456768.0), "-1.234567890123e+18");
    EXPECT_EQ(zelmat::RealDeckNumber(1234567890123456768.0), "1234567890123456768.");
}

TEST(DeckText, FindsAHundredThousandNamesForTheSameOne) {
    std::set<std::string> taken;
    const zelmat::DeckNameRule rule{7, "", true, "MAT"};
    std::string last;
    for (int material = 0; material < 100'000; ++material) last = DeckName("Material", rule, taken);
    EXPECT_EQ(taken.size(), 100'000U);
    EXPECT_EQ(last, "M100000");
}

TEST(DeckText, MakesNamesOfLettersDigitsAndUnderscores) {
    std::set<std::string> taken;
    EXPECT_EQ(DeckName("Steel S355, 20 °C\n*ELASTIC", {80, "-", true, "MATERIAL"}, taken),
              "Steel_S355_20_C_ELASTIC");
    EXPECT_EQ(DeckName("***", {80, "-", true, "MATERIAL"}, taken), "MATERIAL");
    EXPECT_EQ(DeckName("304", {80, "-", true, "MATERIAL"}, taken), "M304");
    EXPECT_EQ(DeckName("", {80, "-", true, "MATERIAL"}, taken), "MATERIAL_2");
}

TEST(DeckText, TellsNamesApartThatBecomeTheSame) {
    std::set<std::string> taken;
    const zelmat::DeckNameRule rule{8, "", true, "M"};
    EXPECT_EQ(DeckName("Rubber soft", rule, taken), "Rubber_s");
    EXPECT_EQ(DeckName("RUBBER SOUR", rule, taken), "RUBBER_2");
    EXPECT_EQ(DeckName("rubber;s", rule, taken), "rubber_3");
}

TEST(DeckText, CutsNamesOfThreeHundredCharacters) {
    std::set<std::string> taken;
    EXPECT_EQ(DeckName(std::string(300, 'x'), {80, "-", true, "M"}, taken), std::string(80, 'x'));
    EXPECT_EQ(DeckName(std::string(300, 'x'), {80, "-", true, "M"}, taken), std::string(78, 'x') + "_2");
}

TEST(DeckText, MakesAsciiOfAnything) {
    EXPECT_EQ(AsciiLine("20 °C, 5 µm, Stähle\r\n\tx\x7f"), "20 deg C, 5 um, St?hle   x ");
    EXPECT_EQ(AsciiLine("\xff\xfe"), "??");
    EXPECT_EQ(AsciiLine(std::string("a\0b", 3)), "a b");
}

TEST(DeckText, LetsNoCommentGoOnOnTheNextLine) {
    EXPECT_EQ(CommentLines("// ", "kept in C:\\cards\\"), "// kept in C:\\cards/\n");
}

TEST(DeckText, KeepsCommentsOnTheirLines) {
    EXPECT_EQ(CommentLines("** ", "one\n*ELASTIC\n1, 2"), "** one *ELASTIC 1, 2\n");
    EXPECT_EQ(CommentLines("** ", ""), "** \n");
    const std::string words = CommentLines("# ", std::string(60, 'a') + " " + std::string(60, 'b'));
    EXPECT_EQ(words, "# " + std::string(60, 'a') + "\n# " + std::string(60, 'b') + "\n");
    EXPECT_EQ(
        CommentLines("# ", std::string(250, 'a')),
        "# " + std::string(100, 'a') + "\n# " + std::string(100, 'a') + "\n# " + std::string(50, 'a') + "\n");
}

}  // namespace
