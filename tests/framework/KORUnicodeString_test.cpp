#include "framework/KORUnicodeString.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace {

constexpr char kText[] = "ZELMaterialLT";
constexpr KORUnicodeString kLiteral = KORUnicodeString::Literal(kText);

}  // namespace

TEST(KORUnicodeString, IsEmptyByDefaultAndFromNull) {
    const KORUnicodeString none;
    const KORUnicodeString null(static_cast<const char*>(nullptr));

    EXPECT_TRUE(none.empty());
    EXPECT_STREQ(none.c_str(), "");
    EXPECT_STREQ(null.c_str(), "");
    EXPECT_EQ(null, none);
    EXPECT_EQ(none, "");
}

TEST(KORUnicodeString, CopiesTheTextItIsMadeFrom) {
    std::string text = "YoungData";
    const KORUnicodeString narrow(text.c_str());
    const KORUnicodeString part(std::string_view(text).substr(0, 5));

    text.assign(9, '*');

    EXPECT_EQ(narrow, "YoungData");
    EXPECT_STREQ(part.c_str(), "Young");
    EXPECT_EQ(part.size(), 5u);
}

TEST(KORUnicodeString, CountsAndComparesBytesOfUtf8) {
    const KORUnicodeString umlaut("Sch\xC3\xA4umer");

    EXPECT_EQ(umlaut.size(), 9u);
    EXPECT_EQ(umlaut.View(), "Sch\xC3\xA4umer");
    EXPECT_LT(KORUnicodeString("z"), KORUnicodeString("\xC3\xA4"));
    EXPECT_LT(KORUnicodeString("Z"), KORUnicodeString("a"));
    EXPECT_LT(KORUnicodeString(""), KORUnicodeString("a"));
    EXPECT_LT(KORUnicodeString("Layup-1"), KORUnicodeString("Layup-10"));
    EXPECT_NE(KORUnicodeString("a"), KORUnicodeString("A"));
    EXPECT_FALSE(KORUnicodeString("a") < KORUnicodeString("a"));
}

TEST(KORUnicodeString, KeepsBytesThatAreZero) {
    const KORUnicodeString text(std::string_view("a\0b", 3));

    EXPECT_EQ(text.size(), 3u);
    EXPECT_NE(text, "a");
}

TEST(KORUnicodeString, SharesItsTextWithItsCopies) {
    const KORUnicodeString text("DataFile");

    const KORUnicodeString copy = text;
    KORUnicodeString assigned("another");
    assigned = copy;

    EXPECT_EQ(copy.c_str(), text.c_str());
    EXPECT_EQ(assigned.c_str(), text.c_str());
}

TEST(KORUnicodeString, OutlivesTheStringItWasCopiedFrom) {
    KORUnicodeString copy;
    {
        const KORUnicodeString text("TemperatureData");
        copy = text;
    }

    EXPECT_EQ(copy, "TemperatureData");
}

TEST(KORUnicodeString, OfALiteralPointsAtTheProgramsText) {
    EXPECT_EQ(kLiteral.c_str(), kText);
    EXPECT_EQ(kLiteral.size(), 13u);
}

TEST(KORUnicodeString, CopiedFromALiteralOwnsItsText) {
    const KORUnicodeString copy = kLiteral;
    KORUnicodeString assigned;
    assigned = kLiteral;

    EXPECT_EQ(copy, "ZELMaterialLT");
    EXPECT_NE(copy.c_str(), kText);
    EXPECT_EQ(assigned, "ZELMaterialLT");
    EXPECT_NE(assigned.c_str(), kText);
}

TEST(KORUnicodeString, MovesWithoutCopying) {
    KORUnicodeString text("HyperelasticModel_v2");
    const char* bytes = text.c_str();

    KORUnicodeString moved(std::move(text));
    EXPECT_EQ(moved.c_str(), bytes);

    KORUnicodeString assigned("another");
    assigned = std::move(moved);
    EXPECT_EQ(assigned.c_str(), bytes);
}

TEST(KORUnicodeString, IsUnchangedByAssigningItToItself) {
    KORUnicodeString text("DataFile");
    const KORUnicodeString& same = text;

    text = same;
    EXPECT_EQ(text, "DataFile");

    text.Swap(text);
    EXPECT_EQ(text, "DataFile");
}

TEST(KORUnicodeString, Concatenates) {
    EXPECT_EQ(KORUnicodeString("Layup-") + "1", "Layup-1");
    EXPECT_EQ(kLiteral + "", "ZELMaterialLT");
    EXPECT_EQ(KORUnicodeString() + KORUnicodeString(), "");
}
