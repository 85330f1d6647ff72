#include "zelmat/text/WrappedText.h"

#include <gmock/gmock.h>

#include "zelmat/text/Printable.h"

namespace {

using testing::ElementsAre;
using testing::SizeIs;
using zelmat::ShortenedText;
using zelmat::TextWidth;
using zelmat::WrappedText;

TEST(WrappedText, BreaksAtBlanks) {
    EXPECT_THAT(WrappedText("carbon fibre tape", 90.0, 10.0, 5), ElementsAre("carbon fibre", "tape"));
    EXPECT_THAT(WrappedText("  two   blanks ", 1000.0, 10.0, 5), ElementsAre("two blanks"));
    EXPECT_THAT(WrappedText("", 100.0, 10.0, 5), ElementsAre(""));
}

TEST(WrappedText, BreaksWithinAWordThatIsWiderThanALine) {
    const auto lines = WrappedText("WWWWWWWWWWWW", 51.0, 10.0, 5);

    EXPECT_THAT(lines, ElementsAre("WWWWW", "WWWWW", "WW"));
}

TEST(WrappedText, EndsInAnEllipsisWhereItIsTooLong) {
    const auto lines = WrappedText(std::string(10000, 'x'), 64.0, 10.0, 2);

    EXPECT_THAT(lines, ElementsAre("xxxxxxxxxx", "xxxxxxxx…"));
}

TEST(ShortenedText, GivesUpItsEndAlone) {
    EXPECT_EQ(ShortenedText("xxxx", 26.0, 10.0), "xxxx");
    EXPECT_EQ(ShortenedText("xxxx xxxx", 42.0, 10.0), "xxxx…") << "no blank before the ellipsis";
    EXPECT_EQ(ShortenedText("xxxx xxxxxxxx", 60.0, 10.0), "xxxx xxx…") << "within a word";
    EXPECT_EQ(ShortenedText("äää", 20.0, 10.0), "ä…");
    EXPECT_EQ(ShortenedText("", 20.0, 10.0), "");
}

TEST(WrappedText, KeepsCharactersOfSeveralBytesWhole) {
    std::string zalgo = "a";
    for (int i = 0; i < 1000; ++i) zalgo += "\xcc\x8d";  // a vertical line above

    const auto lines = WrappedText("短い名前短い名前短い名前 " + zalgo, 50.0, 10.0, 3);

    ASSERT_THAT(lines, SizeIs(3));
    for (const std::string& line : lines) {
        EXPECT_EQ(zelmat::FirstBadByte(line), std::nullopt);
        EXPECT_LE(TextWidth(line, 10.0), 50.0);
    }
}

TEST(WrappedText, IsNeverEndlessInAWidthThatHoldsNothing) {
    EXPECT_THAT(WrappedText("abc", 0.0, 10.0, 2), ElementsAre("a", "…"));
}

}  // namespace
