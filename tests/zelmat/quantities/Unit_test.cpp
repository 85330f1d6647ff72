#include "zelmat/quantities/Unit.h"

#include <gtest/gtest.h>

#include <string>

namespace zelmat {
namespace {

Unit Read(const std::string& text) {
    const auto unit = Unit::Read(text);
    EXPECT_TRUE(unit) << text << ": " << (unit ? "" : unit.Error().text);
    return unit ? *unit : *Unit::Read("-");
}

std::string Refusal(const std::string& text) {
    const auto unit = Unit::Read(text);
    return unit ? "read" : unit.Error().text;
}

double Size(const std::string& text) {
    return static_cast<double>(Read(text).Factor().Quotient());
}

TEST(Unit, AllSpellingsOfAConductivityMeanTheSame) {
    for (const char* text :
         {"W/(m K)", "W/m/K", "W m-1 K-1", "W*m^-1*K^-1", "W.m-1.K-1", "W m⁻¹ K⁻¹", "W/(m·K)", "W/(m*K)",
          "W / ( m  K )", "W/(m-K)", "W m**-1 K**-1", "W/m/degC", "W/(m °C)"}) {
        EXPECT_EQ(Read(text).Dimension(), Read("W/(m K)").Dimension()) << text;
        EXPECT_EQ(Size(text), 1.0) << text;
    }
}

TEST(Unit, AllSpellingsOfADensityMeanTheSame) {
    for (const char* text :
         {"kg/m^3", "kg/m3", "kg/m³", "kg m-3", "kg m^-3", "kg/m**3", "kg/(m^3)", "kg/m/m2", "g/L"}) {
        EXPECT_EQ(Read(text).Dimension(), Read("kg/m3").Dimension()) << text;
        EXPECT_EQ(Size(text), 1.0) << text;
    }
    EXPECT_EQ(Size("g/cm^3"), 1000.0);
    EXPECT_EQ(Size("t/mm3"), 1e12);
}

TEST(Unit, ExpansionsAreReadWithTheirPowersOfTen) {
    for (const char* text :
         {"1e-6/K", "1E-6/K", "1e-6 1/K", "10^-6/K", "10⁻⁶/K", "10^-6 K^-1", "µm/m/K", "um/(m K)",
          "μm/(m °C)", "ppm/K", "microstrain/K", "µε/K", "1e-6 /degC", "1e-6 m/m/K"}) {
        EXPECT_EQ(Read(text).Dimension(), Read("1/K").Dimension()) << text;
        EXPECT_DOUBLE_EQ(Size(text), 1e-6) << text;
    }
    EXPECT_EQ(Size("/K"), 1.0);
}

TEST(Unit, PureNumbersAndStrainsAreReadAndAreNoAngles) {
    for (const char* text : {"-", "1", "m/m", "strain", "mm/mm"}) {
        EXPECT_EQ(Read(text).Dimension(), Dimension()) << text;
        EXPECT_EQ(Size(text), 1.0) << text;
    }
    EXPECT_EQ(Size("%"), 0.01);
    EXPECT_EQ(Size("microstrain"), 1e-6);
    EXPECT_DOUBLE_EQ(Size("deg"), 0.017453292519943295);
    EXPECT_FALSE(Read("deg").Dimension() == Dimension());
    EXPECT_EQ(Read("°").Dimension(), Read("rad").Dimension());
}

TEST(Unit, KeepsTheSpellingItWasReadIn) {
    EXPECT_EQ(Read("kg/m^3").Spelling(), "kg/m^3");
    EXPECT_EQ(Read("kg/m³").Spelling(), "kg/m³");
    EXPECT_EQ(Read("  W/(m  K) ").Spelling(), "W/(m  K)");
    EXPECT_EQ(Read("°C").Spelling(), "°C");
}

TEST(Unit, ATemperatureScaleHasItsZeroOnlyByItself) {
    EXPECT_TRUE(Read("degC").IsScale());
    EXPECT_TRUE(Read("°F").IsScale());
    EXPECT_FALSE(Read("K").IsScale());
    EXPECT_FALSE(Read("degR").IsScale());
    for (const char* text : {"1/degC", "W/(m degC)", "degC^1", "1 degC", "degC m/m"}) {
        EXPECT_FALSE(Read(text).IsScale()) << text;
        EXPECT_TRUE(Read(text).HasScaleWithin()) << text;
    }
}

TEST(Unit, LettersCountAsWritten) {
    EXPECT_EQ(Size("MPa"), 1e6);
    EXPECT_EQ(Size("mPa"), 1e-3);
    EXPECT_EQ(Size("Mg"), 1e3);
    EXPECT_EQ(Size("mg"), 1e-6);
    EXPECT_EQ(Refusal("Mpa"), "the unit 'Mpa' is not known; is 'MPa' meant?");
    EXPECT_EQ(Refusal("N/MM^2"), "the unit 'N/MM^2' is not known: no 'MM'; is 'mm' meant?");
    EXPECT_EQ(Refusal("lbs/in3"), "the unit 'lbs/in3' is not known: no 'lbs'; is 'lb' meant?");
    EXPECT_EQ(Refusal("blah"), "the unit 'blah' is not known");
}

TEST(Unit, WordsThatMeanTwoThingsAreRefusedWithTheRightSpelling) {
    EXPECT_EQ(Refusal("C"),
              "the unit 'C' is ambiguous: for 'C' write 'degC' (a temperature) or 'coulomb' (a charge)");
    EXPECT_EQ(Refusal("F"),
              "the unit 'F' is ambiguous: for 'F' write 'degF' (a temperature) or 'farad' (a capacitance)");
    EXPECT_EQ(
        Refusal("ton/m3"),
        "the unit 'ton/m3' is ambiguous: for 'ton' write 't' (1000 kg), 'short_ton' (2000 lb) or 'long_ton' "
        "(2240 lb)");
    EXPECT_EQ(Refusal("cal/(g K)"),
              "the unit 'cal/(g K)' is ambiguous: for 'cal' write 'cal_th' (4.184 J) or 'cal_IT' (4.1868 J)");
    for (const char* advised :
         {"degC", "coulomb", "degF", "farad", "t", "short_ton", "long_ton", "cal_th", "cal_IT", "kcal_th",
          "kcal_IT", "lb", "lbf", "degR", "roentgen", "kN", "kip", "1e3 kgf"}) {
        EXPECT_TRUE(Unit::Read(advised)) << advised;
    }
}

TEST(Unit, AProductAfterAQuotientIsRefusedWithParentheses) {
    EXPECT_EQ(Refusal("W/m K"),
              "the unit 'W/m K' is ambiguous, a product after '/': write 'W/(m K)' if all of it divides");
    EXPECT_EQ(Refusal("W/m·K"),
              "the unit 'W/m·K' is ambiguous, a product after '/': write 'W/(m K)' if all of it divides");
    EXPECT_EQ(Refusal("J/kg-K"),
              "the unit 'J/kg-K' is ambiguous, a product after '/': write 'J/(kg K)' if all of it divides");
    EXPECT_EQ(Refusal("Btu/hr/ft*degF"),
              "the unit 'Btu/hr/ft*degF' is ambiguous, a product after '/': write 'Btu/(hr ft degF)' if all "
              "of it divides");
    EXPECT_EQ(Refusal("W/(m)K"),
              "the unit 'W/(m)K' is ambiguous, a product after '/': put what divides in parentheses, as in "
              "'W/(m K)'");
    EXPECT_EQ(Refusal("W/m K-1"),
              "the unit 'W/m K-1' is ambiguous, a product after '/': write 'W/(m K-1)' if all of it divides");
}

TEST(Unit, NumbersBesideOneAndPowersOfTenAreRefused) {
    const std::string reason = " has a number that is neither 1 nor a power of ten such as 1e-6";
    for (const char* text :
         {"200 MPa", "100 MPa", "000 MPa", "2", "0.001 m", "10e-6/K", "1.5 m", "12e-6/K", "1x"}) {
        EXPECT_EQ(Refusal(text), std::string("the unit '") + text + "'" + reason);
    }
}

TEST(Unit, MalformedTextsAreRefused) {
    EXPECT_EQ(Refusal(""), "a unit is missing ('-' stands for a pure number)");
    EXPECT_EQ(Refusal("  \t "), "a unit is missing ('-' stands for a pure number)");
    EXPECT_EQ(Refusal("W/"), "the unit 'W/' ends where a unit is expected");
    EXPECT_EQ(Refusal("W//m"), "the unit 'W//m' has a '/' where a unit is expected");
    EXPECT_EQ(Refusal("()"), "the unit '()' ends where a unit is expected");
    EXPECT_EQ(Refusal("W/(m K"), "the unit 'W/(m K' has a '(' without its ')'");
    EXPECT_EQ(Refusal("W/m)"), "the unit 'W/m)' has a ')' without its '('");
    EXPECT_EQ(Refusal("m^"), "the unit 'm^' has a power that is no whole number");
    EXPECT_EQ(Refusal("m^x"), "the unit 'm^x' has a power that is no whole number");
    EXPECT_EQ(Refusal("m*"), "the unit 'm*' ends where a unit is expected");
    EXPECT_EQ(Refusal("m - 1"), "the unit 'm - 1' has a '-' where a unit is expected");
    EXPECT_EQ(Refusal("m;"), "the unit 'm;' has a ';' where a unit is expected");
    EXPECT_EQ(Refusal("--"), "the unit '--' has a '-' where a unit is expected");
    EXPECT_NE(Refusal("m^0.5"), "read");
    EXPECT_NE(Refusal("m3.5"), "read");
}

TEST(Unit, HostileTextsAreRefusedAtOnce) {
    const std::string mebi10(10u << 20, 'm');
    EXPECT_THAT(Refusal(mebi10), testing::EndsWith("...' is too long: 10485760 bytes, at most 200"));
    EXPECT_THAT(Refusal(std::string(10u << 20, '(')), testing::HasSubstr("is too long"));
    EXPECT_EQ(Refusal(std::string(10u << 20, ' ')), "a unit is missing ('-' stands for a pure number)");
    EXPECT_THAT(Refusal(std::string(100, '(') + "m" + std::string(99, ')')),
                testing::EndsWith("has too many parentheses within parentheses"));
    EXPECT_EQ(Refusal(std::string("m\0m", 3)), "the unit 'm\\x00m' has a character that stands in no unit");
    EXPECT_EQ(Refusal("m\x1b[31m"), "the unit 'm\\x1b[31m' has a character that stands in no unit");
    EXPECT_EQ(Refusal("m\xff"), "the unit 'm\uFFFD' has a character that stands in no unit");
    EXPECT_EQ(Refusal("m\nm"), "the unit 'm\\nm' has a character that stands in no unit");
    EXPECT_EQ(Refusal("1e308 m^999"), "the unit '1e308 m^999' has a power beyond 30");
    EXPECT_EQ(Refusal("m^99999999999999999999"), "the unit 'm^99999999999999999999' has a power beyond 30");
    EXPECT_EQ(Refusal("((m^30)^30)^30"),
              "the unit '((m^30)^30)^30' is larger or smaller than anything that is measured");
    EXPECT_EQ(Refusal("(1e30)^30"),
              "the unit '(1e30)^30' is larger or smaller than anything that is measured");
    EXPECT_EQ(Refusal("(1e-30)^30"),
              "the unit '(1e-30)^30' is larger or smaller than anything that is measured");
}

TEST(Unit, ReadsNothingIntoWordsOfFormatsAndProgramming) {
    for (const char* text :
         {"nan", "inf", "0x10", "%s%n", "true", "null", "../m", "m;rm", "kg\\m3", "$m", "'", "\""}) {
        EXPECT_FALSE(Unit::Read(text)) << text;
    }
}

}  // namespace
}  // namespace zelmat
