#include "zelmat/text/Printable.h"

#include <gtest/gtest.h>

namespace {

using zelmat::FirstBadByte;
using zelmat::Printable;
using zelmat::ValidUtf8;

TEST(Printable, LeavesWordsOfEveryLanguageAlone) {
    EXPECT_EQ(Printable("Stahl S355, αm = 12e-6/K, 鋼, 🙂"), "Stahl S355, αm = 12e-6/K, 鋼, 🙂");
}

TEST(Printable, ShowsWhatWouldColourTheTerminalOrForgeALine) {
    EXPECT_EQ(Printable("a\x1b[31mb"), "a\\x1b[31mb");
    EXPECT_EQ(Printable("one\ntwo\r\tthree"), "one\\ntwo\\r\\tthree");
    EXPECT_EQ(Printable(std::string_view("a\0b\x7f", 4)), "a\\x00b\\x7f");
    EXPECT_EQ(Printable("\xc2\x9b"
                        "31m"),
              "\\x9b31m");
}

TEST(Printable, ShowsWhatWouldTurnTheDirectionOfWriting) {
    EXPECT_EQ(Printable("a\u202eb\u2066c\u2028d\u200fe\u061cf"), "a\\u202eb\\u2066c\\u2028d\\u200fe\\u061cf");
}

TEST(Printable, ReplacesBytesThatAreNotUtf8) {
    EXPECT_EQ(Printable("S\xff"
                        "355"),
              "S\uFFFD355");
    EXPECT_EQ(ValidUtf8("cut \xe2\x82"), "cut \uFFFD");
    EXPECT_EQ(ValidUtf8("surrogate \xed\xa0\x80."), "surrogate \uFFFD.");
}

TEST(Printable, EscapesInJsonOnlyWhatJsonLetsThrough) {
    EXPECT_EQ(zelmat::PrintableJson("{\n  \"name\": \"\u202eSt\u00e4hl\u009b31m \x7f\"\n}"),
              "{\n  \"name\": \"\\u202eSt\u00e4hl\\u009b31m \\u007f\"\n}");
}

TEST(Printable, SaysWhereATextStopsBeingUtf8) {
    EXPECT_EQ(FirstBadByte("Stähl"), std::nullopt);
    EXPECT_EQ(FirstBadByte("St\xe4hl"), 2u);
    EXPECT_EQ(FirstBadByte("\xc0\xaf"), 0u);
}

}  // namespace
