#include "zelmat/quantities/ReadNumber.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "tests/zelmat/quantities/CommaLocale.h"
#include "zelmat/quantities/NumberText.h"

namespace zelmat {
namespace {

double Read(const std::string& text) {
    const auto number = ReadNumber(text);
    EXPECT_TRUE(number) << text << ": " << (number ? "" : number.Error().text);
    return number ? *number : -999.0;
}

std::string Refusal(const std::string& text) {
    const auto number = ReadNumber(text);
    return number ? "read" : number.Error().text;
}

TEST(ReadNumber, TakesDecimalNumbersWithAPoint) {
    EXPECT_EQ(Read("7.85"), 7.85);
    EXPECT_EQ(Read(" +7.85 "), 7.85);
    EXPECT_EQ(Read("-.5"), -0.5);
    EXPECT_EQ(Read("5."), 5.0);
    EXPECT_EQ(Read("1e-6"), 1e-6);
    EXPECT_EQ(Read("1.10E-005"), 1.1e-5);
    EXPECT_EQ(Read("000210000"), 210000.0);
    EXPECT_EQ(Read("5e-324"), 5e-324);
    EXPECT_EQ(Read("1.7976931348623157e308"), 1.7976931348623157e308);
    EXPECT_EQ(Read("0e-400"), 0.0);
    EXPECT_TRUE(std::signbit(Read("-0")));
}

TEST(ReadNumber, TakesTheNearestDouble) {
    EXPECT_EQ(Read("0.1000000000000000055511151231257827"), 0.1);
    EXPECT_EQ(Read("9007199254740993"), 9007199254740992.0);
    EXPECT_EQ(Read("9007199254740993.00000000000000000000000000000000000001"), 9007199254740994.0);
    EXPECT_EQ(Read("0." + std::string(400, '0') + "1e401"), 1.0);
}

TEST(ReadNumber, RefusesWhatNoDoubleHolds) {
    const std::string reason = " is beyond what a number can hold, about 5e-324 to 1.8e308";
    EXPECT_EQ(Refusal("1e400"), "'1e400'" + reason);
    EXPECT_EQ(Refusal("-1e400"), "'-1e400'" + reason);
    EXPECT_EQ(Refusal("1e-400"), "'1e-400'" + reason);
    EXPECT_EQ(Refusal("2e-324"), "'2e-324'" + reason);
    EXPECT_EQ(Refusal("1e99999999999999999999"), "'1e99999999999999999999'" + reason);
}

TEST(ReadNumber, RefusesWordsHexadecimalAndCommas) {
    for (const char* text :
         {"", " ", "nan", "NaN", "inf", "-inf", "infinity", "abc", "-", "+-1", "--1", "e5", ".", "-.e5"}) {
        EXPECT_THAT(Refusal(text), testing::EndsWith("does not begin with a number")) << text;
    }
    EXPECT_EQ(Refusal("0x10"), "'0x10' is not a decimal number");
    EXPECT_EQ(Refusal("1,5"), "'1,5' has a comma in its number; the decimal sign is a point");
    EXPECT_EQ(Refusal("1.5.2"), "'1.5.2' has more than one decimal point in its number");
    EXPECT_EQ(Refusal("1..2"), "'1..2' has more than one decimal point in its number");
    EXPECT_EQ(Refusal("1 000"), "'1 000' is not a number alone");
    EXPECT_EQ(Refusal("1e"), "'1e' is not a number alone");
    EXPECT_EQ(Refusal(std::string("1\0", 2)), "'1\\x00' is not a number alone");
    EXPECT_THAT(Refusal("1\n"), testing::EndsWith("is not a number alone"));
}

TEST(ReadNumber, TakesLongTextsInLinearTime) {
    EXPECT_EQ(Read("1." + std::string(10u << 20, '0')), 1.0);
    EXPECT_THAT(Refusal(std::string(10u << 20, '9')), testing::HasSubstr("beyond"));
}

TEST(ReadNumber, LeavesWhatStandsBehind) {
    EXPECT_EQ(ReadLeadingNumber("210GPa")->rest, "GPa");
    EXPECT_EQ(ReadLeadingNumber("5eV")->rest, "eV");
    EXPECT_EQ(ReadLeadingNumber("1e5Pa")->number, 1e5);
}

TEST(NumberText, ReadsBackAsTheSame) {
    EXPECT_EQ(NumberText(0.3), "0.3");
    EXPECT_EQ(NumberText(0.1 + 0.2), "0.30000000000000004");
    EXPECT_EQ(NumberText(2.1e11), "2.1e+11");
    EXPECT_EQ(NumberText(-0.0), "-0");
    EXPECT_EQ(NumberText(5e-324), "5e-324");
    EXPECT_EQ(NumberText(-2.2250738585072014e-308), "-2.2250738585072014e-308");
}

TEST(NumberText, HasAPointInEveryLocale) {
    const CommaLocale comma;
    if (!comma.IsSet()) GTEST_SKIP() << "no locale with a decimal comma is installed";

    EXPECT_EQ(NumberText(0.5), "0.5");
    EXPECT_EQ(Read("0.5"), 0.5);
    EXPECT_NE(Refusal("0,5"), "read");
}

}  // namespace
}  // namespace zelmat
