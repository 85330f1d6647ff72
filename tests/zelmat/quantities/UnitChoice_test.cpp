#include "zelmat/quantities/UnitChoice.h"

#include <gtest/gtest.h>

#include <string>

namespace zelmat {
namespace {

std::string Chosen(const UnitChoice& choice, const char* quantity) {
    return choice.For(*FindQuantity(quantity)).Spelling();
}

std::string Chosen(const char* text, const char* quantity) {
    const auto choice = UnitChoice::Read(text, UnitChoice::Si());
    EXPECT_TRUE(choice) << text << ": " << (choice ? "" : choice.Error().text);
    return choice ? Chosen(*choice, quantity) : "";
}

std::string Refusal(const char* text) {
    const auto choice = UnitChoice::Read(text, UnitChoice::Si());
    return choice ? "read" : choice.Error().text;
}

TEST(UnitChoice, TextIsInMegapascalsAndCelsiusByDefault) {
    EXPECT_EQ(Chosen(UnitChoice::ForText(), "stress"), "MPa");
    EXPECT_EQ(Chosen(UnitChoice::ForText(), "modulus"), "MPa");
    EXPECT_EQ(Chosen(UnitChoice::ForText(), "temperature"), "degC");
    EXPECT_EQ(Chosen(UnitChoice::ForText(), "density"), "kg/m3");
}

TEST(UnitChoice, SiIsWhatDocumentsHold) {
    for (const Quantity& quantity : Quantities()) {
        EXPECT_EQ(UnitChoice::Si().For(quantity).Spelling(), quantity.stored.Spelling());
    }
}

TEST(UnitChoice, EverySystemSaysItsTemperature) {
    EXPECT_EQ(UnitChoice::Systems(), "si, mm-t-s, mm-kg-ms and us");
    EXPECT_EQ(Chosen("si", "temperature"), "K");
    EXPECT_EQ(Chosen("mm-t-s", "temperature"), "degC");
    EXPECT_EQ(Chosen("mm-kg-ms", "temperature"), "degC");
    EXPECT_EQ(Chosen("us", "temperature"), "degF");
}

// In a consistent system every derived unit is the product of the system's own length, mass and time.
TEST(UnitChoice, TheTwoSystemsInMillimetresAreConsistent) {
    const struct {
        const char* quantity;
        const char* tonne;
        const char* kilogram;
    } rows[] = {
        {"stress", "t/(mm s2)", "kg/(mm ms2)"},
        {"density", "t/mm3", "kg/mm3"},
        {"conductivity", "t mm/(s3 K)", "kg mm/(ms3 K)"},
        {"specific_heat", "mm2/(s2 K)", "mm2/(ms2 K)"},
        {"expansion", "1/K", "1/K"},
        {"length", "mm", "mm"},
        {"stiffness_per_area", "t/(mm2 s2)", "kg/(mm2 ms2)"},
        {"compressibility", "mm s2/t", "mm ms2/kg"},
        {"area_density", "t/mm2", "kg/mm2"},
        {"force", "t mm/s2", "kg mm/ms2"},
        {"force_per_length", "t/s2", "kg/ms2"},
        {"moment", "t mm2/s2", "kg mm2/ms2"},
        {"velocity", "mm/s", "mm/ms"},
        {"rate", "1/s", "1/ms"},
    };
    const auto size = [](const Unit& unit) { return static_cast<double>(unit.Factor().Quotient()); };
    const UnitChoice tonne = *UnitChoice::Read("mm-t-s", UnitChoice::Si());
    const UnitChoice kilogram = *UnitChoice::Read("mm-kg-ms", UnitChoice::Si());
    for (const auto& row : rows) {
        const Quantity& quantity = *FindQuantity(row.quantity);
        EXPECT_DOUBLE_EQ(size(tonne.For(quantity)), size(*Unit::Read(row.tonne))) << row.quantity;
        EXPECT_DOUBLE_EQ(size(kilogram.For(quantity)), size(*Unit::Read(row.kilogram))) << row.quantity;
    }
}

TEST(UnitChoice, QuantitiesCanBeChosenOneByOne) {
    EXPECT_EQ(Chosen("stress=MPa,temperature=degC", "stress"), "MPa");
    EXPECT_EQ(Chosen("stress=MPa,temperature=degC", "temperature"), "degC");
    EXPECT_EQ(Chosen("stress=MPa,temperature=degC", "density"), "kg/m3");
    EXPECT_EQ(Chosen("us, stress = ksi", "stress"), "ksi");
    EXPECT_EQ(Chosen("us, stress = ksi", "length"), "in");
}

TEST(UnitChoice, AFamilyFollowsItsHeadUnlessItHasAUnitOfItsOwn) {
    EXPECT_EQ(Chosen("stress=ksi", "pressure"), "ksi");
    EXPECT_EQ(Chosen("modulus=GPa,stress=ksi", "modulus"), "GPa");
    EXPECT_EQ(Chosen("modulus=GPa,stress=ksi", "pressure"), "ksi");
    EXPECT_EQ(Chosen("modulus=GPa", "stress"), "Pa");
    EXPECT_EQ(Chosen("us", "modulus"), "psi");
}

TEST(UnitChoice, WithoutASystemTheRestStaysAsInTheBase) {
    const auto choice = UnitChoice::Read("stress=ksi", UnitChoice::ForText());
    EXPECT_EQ(Chosen(*choice, "stress"), "ksi");
    EXPECT_EQ(Chosen(*choice, "temperature"), "degC");
}

TEST(UnitChoice, RefusesWhatItDoesNotKnow) {
    EXPECT_EQ(
        Refusal("imperial"),
        "'imperial' is no system of units (si, mm-t-s, mm-kg-ms and us) and no choice such as 'stress=MPa'");
    EXPECT_EQ(Refusal(""),
              "'' is no system of units (si, mm-t-s, mm-kg-ms and us) and no choice such as 'stress=MPa'");
    EXPECT_THAT(Refusal("stres=MPa"),
                testing::StartsWith("'stres' is no quantity; there are stress, modulus, "));
    EXPECT_EQ(Refusal("stress=MPa,stress=psi"), "'stress' is given two units");
    EXPECT_EQ(Refusal("angle=MPa"),
              "angle: the unit 'MPa' measures something else; expected deg, rad or gon");
    EXPECT_NE(Refusal("stress=MPa,"), "read");
    EXPECT_NE(Refusal("stress=MPa,us"), "read");
    EXPECT_NE(Refusal("stress="), "read");
}

}  // namespace
}  // namespace zelmat
