#include "zelmat/cards/Condition.h"

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;
using zelmat::ReadConditions;

std::size_t CountOf(const char* text) {
    const auto conditions = ReadConditions(text);
    return conditions ? conditions->size() : 0;
}

std::string ProblemOf(const char* text) {
    const auto conditions = ReadConditions(text);
    return conditions ? "" : conditions.Error().text;
}

TEST(Condition, StandsBesideOthersWithAndInAnyLetters) {
    EXPECT_EQ(CountOf("density<3000kg/m3"), 1U);
    EXPECT_EQ(CountOf("density<3000kg/m3 and density>1 kg/m3 AND density >= 2 kg/m3 And density<=9kg/m3"),
              4U);
    EXPECT_EQ(CountOf("density<3000kg/m3\tand\ndensity>1kg/m3"), 2U);
}

TEST(Condition, NamesItsValueInTheWaysOfCards) {
    for (const char* text : {"E>60GPa", "elastic.E@20degC>60GPa", "nu<0.3", "rho<3 g/cm^3", "Density<1kg/m3",
                             "thermal_expansion.Tref<30degC", "gasket.loading.Pressure>1MPa"}) {
        EXPECT_EQ(ProblemOf(text), "") << text;
    }
}

TEST(Condition, HasNoTemperatureBelowAbsoluteZero) {
    EXPECT_EQ(ProblemOf("density@-300degC<1kg/m3"), "'density@-300degC' is below absolute zero");
    EXPECT_EQ(ProblemOf("density@-273.15degC<1kg/m3"), "");
}

TEST(Condition, SaysWhatThereIsWhenItIsNone) {
    EXPECT_THAT(ProblemOf("density=3kg/m3"), HasSubstr("with one of < <= > >="));
    EXPECT_THAT(ProblemOf("density<3kg/m3 or density>4kg/m3"), HasSubstr("there is no or"));
    EXPECT_THAT(ProblemOf("density<3kg/m3 and"), HasSubstr("'kg/m3 and'"));
    EXPECT_THAT(ProblemOf(" and density<3kg/m3"), HasSubstr("is no condition"));
}

}  // namespace
