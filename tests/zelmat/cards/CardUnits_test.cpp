#include <gmock/gmock.h>

#include "tests/zelmat/support/CardFile.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(CardUnits, AreThoseThatTheCardNamesForItsQuantities) {
    const auto card = CardOf(R"({"name": "x",
        "units": {"stress": "MPa", "temperature": "degC", "thermal_expansion": "1e-6/K", "// note": "ignored"},
        "elastic": {"temperature_dependent": true, "columns": ["youngs_modulus", "poissons_ratio", "temperature"],
                    "rows": [[210000, 0.3, 20]]},
        "thermal_expansion": {"temperature_dependent": false, "columns": ["thermal_expansion"], "rows": [[12]],
                              "reference_temperature": 20},
        "density": {"temperature_dependent": false, "columns": ["density"], "rows": [[7850]]}})");

    EXPECT_THAT(Rows(card.Find("elastic")->tables[0]), ElementsAre(ElementsAre(210e9, 0.3, 293.15)));
    EXPECT_THAT(Rows(card.Find("thermal_expansion")->tables[0]), ElementsAre(ElementsAre(1.2e-5)));
    EXPECT_EQ(card.Find("thermal_expansion")->values.Get<double>("reference_temperature"), 293.15);
    EXPECT_THAT(Rows(card.Find("density")->tables[0]), ElementsAre(ElementsAre(7850.0)));
}

TEST(CardUnits, GiveWayToTheUnitOfAColumn) {
    const auto card = CardOf(R"({"name": "x", "units": {"stress": "MPa", "modulus": "ksi"},
        "elastic": {"temperature_dependent": false, "columns": ["youngs_modulus [GPa]", "poissons_ratio [-]"],
                    "rows": [[210, 0.3]]},
        "plastic": {"temperature_dependent": false, "hardening": "isotropic",
                    "columns": ["yield_stress", "plastic_strain [%]", "temperature[degC]"],
                    "rows": [[355, 0, 20], [470, 5, 20]]}})");

    EXPECT_THAT(Rows(card.Find("elastic")->tables[0]), ElementsAre(ElementsAre(210e9, 0.3)));
    EXPECT_THAT(Rows(card.Find("plastic")->tables[0]),
                ElementsAre(ElementsAre(355e6, 0.0, 293.15), ElementsAre(470e6, 0.05, 293.15)));
}

TEST(CardUnits, OfAStressServeModuliAndPressuresUnlessTheseAreNamed) {
    const auto elastic = [](const std::string& units) {
        const auto card = CardOf(R"({"name": "x", "units": )" + units + R"(, "elastic":
            {"temperature_dependent": false, "columns": ["youngs_modulus", "poissons_ratio"], "rows": [[3, 0.3]]}})");
        return Rows(card.Find("elastic")->tables[0]).front().front();
    };
    EXPECT_EQ(elastic(R"({"stress": "MPa"})"), 3e6);
    EXPECT_EQ(elastic(R"({"stress": "MPa", "modulus": "GPa"})"), 3e9);
}

TEST(CardUnits, KeepTheNumbersAndTheSpellingInWhichTheyWereWritten) {
    const auto card = CardOf(R"({"name": "x", "density": {"temperature_dependent": true,
        "columns": ["density [g/cm^3]", "temperature [°C]"], "rows": [[7.85, 20.1]]},
        "conductivity": {"temperature_dependent": false, "columns": ["conductivity [W/m/K]"], "rows": [[50]]},
        "specific_heat": {"temperature_dependent": false, "columns": ["specific_heat"], "rows": [[470]]},
        "thermal_expansion": {"temperature_dependent": false, "columns": ["thermal_expansion"], "rows": [[1e-5]],
                              "reference_temperature": "20 degC"}})");

    const auto& density = card.Find("density")->tables[0].columns;
    EXPECT_EQ(density[0].values, std::vector<double>{7850.0});
    EXPECT_EQ(density[0].written->unit, "g/cm^3");
    EXPECT_EQ(density[0].written->numbers, std::vector<double>{7.85});
    EXPECT_EQ(density[1].written->unit, "°C");
    EXPECT_EQ(density[1].written->numbers, std::vector<double>{20.1});

    const auto& conductivity = card.Find("conductivity")->tables[0].columns[0];
    EXPECT_EQ(conductivity.written->unit, "W/m/K");
    EXPECT_THAT(conductivity.written->numbers, IsEmpty());  // the stored ones
    EXPECT_FALSE(card.Find("specific_heat")->tables[0].columns[0].written);

    const auto& reference = card.Find("thermal_expansion")->written.at("reference_temperature");
    EXPECT_EQ(reference.number, 20.0);
    EXPECT_EQ(reference.unit, "degC");
}

TEST(CardUnits, HaveToMeasureWhatTheyAreFor) {
    EXPECT_THAT(FindingsOf("{\"name\": \"x\", \"units\": {\n\"stress\": \"kg\",\n\"strss\": \"N\",\n"
                           "\"density\": 1}}"),
                ElementsAre("card.json:2: error[wrong-unit]: stress: the unit 'kg' measures something else; "
                            "expected Pa, kPa, MPa, GPa, N/mm^2, bar, psi, ksi, Msi or kgf/mm^2",
                            "card.json:3: error[unknown-unit]: there is no quantity \"strss\" (did you mean "
                            "stress?)",
                            "card.json:4: error[wrong-type]: units.density is not a text (got 1)"));
    EXPECT_THAT(FindingsOf("{\"name\": \"x\", \"specific_heat\": {\"temperature_dependent\": false,\n"
                           "\"columns\": [\"specific_heat [W/(m K)]\"], \"rows\": [[1]]}}"),
                ElementsAre(testing::StartsWith("card.json:2: error[wrong-unit]: specific heat: the unit "
                                                "'W/(m K)' measures something else; expected J/(kg K)")));
}

TEST(CardUnits, RefuseANumberThatNoDoubleHoldsInTheStoredUnit) {
    EXPECT_THAT(FindingsOf("{\"name\": \"x\", \"elastic\": {\"temperature_dependent\": false, \"columns\":\n"
                           "[\"youngs_modulus [GPa]\", \"poissons_ratio\"], \"rows\": [\n[1e305, 0.3]]}}"),
                ElementsAre("card.json:3: error[wrong-value]: modulus: 1e+305 GPa is beyond what a number in "
                            "Pa can hold"));
}

TEST(PropertyNames, OfTheFieldAreUnderstood) {
    for (const char* columns : {R"(["E", "nu", "T"])", R"(["YoungModulus", "PoissonRatio", "Temperature"])",
                                R"(["YOUNG_MODULUS [Pa]", "Poisson's ratio", "temp [K]"])"}) {
        const auto card = CardOf(R"({"name": "x", "elastic": {"temperature_dependent": true, "columns": )" +
                                 std::string(columns) + R"(, "rows": [[7e10, 0.33, 293.15]]}})");
        EXPECT_THAT(Rows(card.Find("elastic")->tables[0]), ElementsAre(ElementsAre(7e10, 0.33, 293.15)))
            << columns;
    }
}

TEST(PropertyNames, DoNotHideTheColumnsOfATable) {
    EXPECT_THAT(FindingsOf("{\"name\": \"x\", \"elastic\": {\"temperature_dependent\": false,\n"
                           "\"columns\": [\"E\", \"YoungsModulus\"], \"rows\": [[1, 2]]}}"),
                ElementsAre("card.json:2: error[repeated-column]: elastic has the column \"youngs_modulus\" "
                            "twice"));
}

}  // namespace
