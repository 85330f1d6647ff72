#include "zelmat/materials/InUnits.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using testing::ElementsAre;
using zelmat::InUnits;
using zelmat::Table;
using zelmat::UnitChoice;

UnitChoice Units(const char* text) {
    return *UnitChoice::Read(text, UnitChoice::Si());
}

Table Elastic() {
    return {.columns = {{{"youngs_modulus", "Young's modulus", "Pa"}, {2.1e11, 1.89e11}},
                        {{"poissons_ratio", "Poisson's ratio", "-"}, {0.3, 0.31}},
                        {{"temperature", "temperature", "K"}, {293.15, 473.15}}}};
}

TEST(InUnits, ShowsATableInTheUnitsChosen) {
    const Table shown = InUnits(Elastic(), UnitChoice::ForText());

    EXPECT_EQ(shown.columns[0].kind.unit, "MPa");
    EXPECT_THAT(shown.columns[0].values, ElementsAre(210000.0, 189000.0));
    EXPECT_EQ(shown.columns[1].kind.unit, "-");
    EXPECT_THAT(shown.columns[1].values, ElementsAre(0.3, 0.31));
    EXPECT_EQ(shown.columns[2].kind.unit, "degC");
    EXPECT_THAT(shown.columns[2].values, ElementsAre(20.0, 200.0));
}

TEST(InUnits, TellsModuliPressuresAndStrainsFromTheirFamilies) {
    const UnitChoice units = Units("stress=MPa,modulus=GPa,pressure=bar,strain=%");
    const Table table = {.columns = {{{"youngs_modulus", "", "Pa"}, {2.1e11}},
                                     {{"yield_stress", "", "Pa"}, {3.55e8}},
                                     {{"pressure", "", "Pa"}, {2e5}},
                                     {{"plastic_strain", "", "-"}, {0.02}},
                                     {{"poissons_ratio", "", "-"}, {0.3}}}};

    const Table shown = InUnits(table, units);

    EXPECT_EQ(shown.columns[0].kind.unit, "GPa");
    EXPECT_THAT(shown.columns[0].values, ElementsAre(210.0));
    EXPECT_EQ(shown.columns[1].kind.unit, "MPa");
    EXPECT_THAT(shown.columns[1].values, ElementsAre(355.0));
    EXPECT_EQ(shown.columns[2].kind.unit, "bar");
    EXPECT_THAT(shown.columns[2].values, ElementsAre(2.0));
    EXPECT_EQ(shown.columns[3].kind.unit, "%");
    EXPECT_THAT(shown.columns[3].values, ElementsAre(2.0));
    EXPECT_EQ(shown.columns[4].kind.unit, "-");
    EXPECT_THAT(shown.columns[4].values, ElementsAre(0.3));
}

TEST(InUnits, LeavesWhatHasNoUnitAndWhatIsMissingAlone) {
    constexpr double kMissing = std::numeric_limits<double>::quiet_NaN();
    const Table table = {
        .columns = {{{"constant", "constant", ""}, {45.0}}, {{"D1", "D1", "1/Pa"}, {kMissing}}}};

    const Table shown = InUnits(table, Units("us"));

    EXPECT_EQ(shown.columns[0].kind.unit, "");
    EXPECT_THAT(shown.columns[0].values, ElementsAre(45.0));
    EXPECT_EQ(shown.columns[1].kind.unit, "1/psi");
    EXPECT_TRUE(std::isnan(shown.columns[1].values[0]));
}

TEST(InUnits, KeepsAColumnThatItsUnitCannotHold) {
    const Table table = {.columns = {{{"compressibility", "", "1/Pa"}, {1e-9, 1e305}}}};

    const Table shown = InUnits(table, Units("compressibility=1/GPa"));

    EXPECT_EQ(shown.columns[0].kind.unit, "1/Pa");
    EXPECT_THAT(shown.columns[0].values, ElementsAre(1e-9, 1e305));
}

TEST(InUnits, ShowsASingleValueWithItsUnit) {
    const zelmat::Setting temperature{.name = "reference_temperature", .title = "", .unit = "K"};
    const auto shown = InUnits(temperature, 293.15, UnitChoice::ForText());
    EXPECT_EQ(shown.value, zelmat::Value(20.0));
    EXPECT_EQ(shown.unit, "degC");

    const zelmat::Setting hardening{.name = "hardening", .title = ""};
    EXPECT_EQ(InUnits(hardening, std::string("isotropic"), UnitChoice::ForText()).value,
              zelmat::Value(std::string("isotropic")));
}

}  // namespace
