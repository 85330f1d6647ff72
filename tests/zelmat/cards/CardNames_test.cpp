#include <gmock/gmock.h>

#include "tests/zelmat/support/CardFile.h"
#include "zelmat/cards/PropertyNames.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

std::vector<std::vector<double>> RowsOf(const zelmat::Material& card, const char* block) {
    const zelmat::Block* found = card.Find(block);
    return found ? Rows(found->tables.front()) : std::vector<std::vector<double>>();
}

TEST(CardNames, MakeTablesOfPropertiesBesideTheBlocks) {
    const auto card = CardOf(R"({"name": "M", "units": {"stress": "MPa"},
        "E": 210000, "nu": 0.3, "rho": "7850 kg/m3", "specific_heat": 460, "CTE": "12 µm/m/K", "k": "50 W/m/K"})");

    EXPECT_THAT(RowsOf(card, "elastic"), ElementsAre(ElementsAre(210e9, 0.3)));
    EXPECT_THAT(RowsOf(card, "density"), ElementsAre(ElementsAre(7850.0)));
    EXPECT_THAT(RowsOf(card, "specific_heat"), ElementsAre(ElementsAre(460.0)));
    EXPECT_THAT(RowsOf(card, "thermal_expansion"), ElementsAre(ElementsAre(12e-6)));
    EXPECT_THAT(RowsOf(card, "conductivity"), ElementsAre(ElementsAre(50.0)));
    EXPECT_FALSE(card.Find("elastic")->tables.front().temperatureDependent);
}

TEST(CardNames, FindBlocksAndSettingsUnderTheNamesOfTheField) {
    const auto card = CardOf(R"({"name": "M",
        "Linear Elastic": {"temperature_dependent": false, "columns": ["YOUNG_MODULUS [GPa]", "NU"], "rows": [[70, 0.33]]},
        "Coefficient of Thermal Expansion": {"temperature_dependent": false, "columns": ["alpha"], "rows": [[2.3e-5]],
                                             "Tref": "20 degC"},
        "Hyperelasticity": [{"model": "NEO_HOOKE", "order": 1, "temperature_dependent": false, "columns": ["C10"],
                             "rows": [[4e5]]}]})");

    EXPECT_THAT(RowsOf(card, "elastic"), ElementsAre(ElementsAre(70e9, 0.33)));
    EXPECT_EQ(card.Find("thermal_expansion")->values.Get<double>("reference_temperature"), 293.15);
    EXPECT_EQ(card.fits.size(), 1u);
    EXPECT_TRUE(card.kept.empty());
}

TEST(CardNames, TakeATableOfOneRowValueByValue) {
    const auto card =
        CardOf(R"({"name": "M", "elastic": {"YoungModulus": "124 GPa", "nu": 0.34, "source": "handbook"},
        "plastic": {"hardening": "johnson-cook", "A": "90 MPa", "B": "292 MPa", "n": 0.31, "m": 1.09,
                    "melting_temperature": "1083 degC", "transition_temperature": 298}})");

    EXPECT_THAT(RowsOf(card, "elastic"), ElementsAre(ElementsAre(124e9, 0.34)));
    EXPECT_EQ(card.Find("elastic")->tables.front().source, "handbook");
    EXPECT_THAT(RowsOf(card, "plastic"), ElementsAre(ElementsAre(90e6, 292e6, 0.31, 1.09, 1356.15, 298.0)));
}

TEST(CardNames, TakeAFitCoefficientByCoefficient) {
    const auto card = CardOf(R"({"name": "M", "hyperelastic": [
        {"model": "NEO_HOOKE", "order": 1, "C10": "0.5 MPa", "D1": "0.001 1/MPa"},
        {"model": "OGDEN", "order": 2, "ogden_convention": "mu/alpha", "mu_1": "1 MPa", "alpha_1": 3,
         "mu_2": "2 kPa", "alpha_2": -2, "status": "published"}]})");

    EXPECT_THAT(Rows(card.fits.at(0).tables.front()), ElementsAre(ElementsAre(0.5e6, 1e-9)));
    EXPECT_THAT(Rows(card.fits.at(1).tables.front()),
                ElementsAre(ElementsAre(1e6, 3.0, 2e3, -2.0, 0.0, 0.0)));
    EXPECT_TRUE(card.fits.at(1).kept.empty());
}

TEST(CardNames, NameTheLineOnWhichAValueStands) {
    EXPECT_THAT(FindingsOf("{\"name\": \"M\",\n\"nu\": 0.3,\n\"E\": \"210 kg\",\n\"rho\":\n\"7 m\"}"),
                ElementsAre(HasSubstr("card.json:3: error[wrong-unit]: modulus: the unit 'kg' measures"),
                            HasSubstr("card.json:5: error[wrong-unit]: density: the unit 'm' measures")));
    EXPECT_THAT(FindingsOf("{\"name\": \"M\",\n\"E\": \"210 GPa\"}"),
                ElementsAre(HasSubstr(
                    "card.json:2: error[missing-column]: elastic lacks the column \"poissons_ratio\"")));
    EXPECT_THAT(
        FindingsOf("[{\"name\": \"A\"},\n{\"name\": \"B\",\n\"Elastic\": {\n\"temperature_dependent\": 1}}]"),
        testing::Contains(HasSubstr(
            "card.json:4: error[wrong-type]: [1].elastic.temperature_dependent is not true or false")));
}

TEST(CardNames, RefuseTwoKeysOfOneMeaning) {
    for (const char* twice :
         {R"("rho": 1, "density": 7850)", R"("RHO": 1, "density": 7850)", R"("rho": 1, "Density": 7850)",
          R"("E": 1, "elastic": {"E": 2, "nu": 0.3})", R"("elastic": {"E": 1, "YoungModulus": 2, "nu": 0.3})",
          R"("density": {"rho": 1}, "Density": {"rho": 1})",
          R"("thermal_expansion": {"alpha": 1e-5, "Tref": 293, "reference_temperature": 293})"}) {
        EXPECT_THAT(FindingsOf(std::string("{\"name\": \"M\", ") + twice + "}"),
                    testing::Contains(HasSubstr("card.json:1: error[repeated-key]: '")))
            << twice;
    }
}

TEST(CardNames, LeaveAloneWhatHasNoNumberOrNoTable) {
    EXPECT_THAT(FindingsOf(R"({"name": "M", "E": "stiff"})"),
                ElementsAre(HasSubstr("warning[unknown-block]")));
    EXPECT_THAT(FindingsOf(R"({"name": "M", "T": 293})"), ElementsAre(HasSubstr("warning[unknown-block]")));
    EXPECT_THAT(FindingsOf(R"({"name": "M", "G": "79 GPa"})"),
                ElementsAre(HasSubstr("warning[unknown-block]")));
    EXPECT_THAT(FindingsOf(R"({"name": "M", "density": "heavy"})"),
                ElementsAre(HasSubstr("error[wrong-type]: density is not an object")));
}

TEST(BlockName, IsThatOfTheHouse) {
    for (const char* name : {"elastic", "Elastic", "ELASTICITY", "Linear Elastic", "isotropic_elasticity"}) {
        EXPECT_EQ(zelmat::BlockName(name), "elastic") << name;
    }
    EXPECT_EQ(zelmat::BlockName("Thermal Conductivity"), "conductivity");
    EXPECT_EQ(zelmat::BlockName("CP"), "specific_heat");
    EXPECT_EQ(zelmat::BlockName("mass density"), "density");
    EXPECT_EQ(zelmat::BlockName("Rendering"), "Rendering");
}

}  // namespace
