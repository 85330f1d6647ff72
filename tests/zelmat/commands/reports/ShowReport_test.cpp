#include "zelmat/commands/reports/ShowReport.h"

#include <gmock/gmock.h>

#include <nlohmann/json.hpp>
#include <sstream>

#include "tests/zelmat/support/BehaviorBlocks.h"
#include "tests/zelmat/support/CardFile.h"
#include "tests/zelmat/support/CatalogFolder.h"
#include "zelmat/commands/frame/JsonReport.h"

namespace {

using testing::HasSubstr;

std::string Printed(const zelmat::StoredMaterial& material) {
    std::ostringstream out;
    zelmat::PrintMaterial(out, material, zelmat::UnitChoice::ForText());
    return out.str();
}

TEST(ShowReport, PrintsEveryBehaviorThatIsOnWithUnitsAndSource) {
    const StoredCard stored(R"({"name": "Small", "description": "Two tables.",
        "source": ["Handbook", "Data sheet"], "strength": {},
        "test_data": {"planar": {"columns": ["stretch", "nominal_stress"], "rows": [[1.02, 25500]]}},
        "density": {"temperature_dependent": true, "columns": ["density", "temperature"], "source": "page 7",
                    "rows": [[7850, 293.15], [7700.5, 773.15]]},
        "thermal_expansion": {"temperature_dependent": false, "columns": ["thermal_expansion"],
                              "kind": "mean", "rows": [[1.2e-5]], "reference_temperature": 293.15}})");

    EXPECT_EQ(Printed(stored.material),
              "Small\n"
              "Two tables.\n"
              "source: Handbook\n"
              "source: Data sheet\n"
              "\n"
              "switched on: density, thermal_expansion\n"
              "switched off: " +
                  BehaviorBlocksBut({"density", "thermal_expansion"}) +
                  "\n"
                  "\n"
                  "Density, temperature dependent\n"
                  "  density [kg/m3]  temperature [degC]\n"
                  "           7850.0                  20\n"
                  "           7700.5                 500\n"
                  "  source: page 7\n"
                  "\n"
                  "Thermal expansion, not temperature dependent\n"
                  "  reference temperature: 20 degC\n"
                  "  thermal expansion [1/K]\n"
                  "                  1.2e-05\n"
                  "  kind, on the card: mean\n"
                  "\n"
                  "for information only, used by no behavior: test_data (planar 1 row), strength\n");
}

TEST(ShowReport, PrintsABehaviorOfSeveralTables) {
    const StoredCard stored(R"({"name": "Small", "gasket": {"initial_thickness": 0.002, "unloading": true,
        "loading": {"temperature_dependent": false, "columns": ["pressure", "closure", "temperature"],
                    "rows": [[0, 0, 293.15], [2e6, 4e-5, 293.15], [5e6, 8e-5, 293.15]], "source": "page 8"}}})");

    EXPECT_THAT(Printed(stored.material), HasSubstr("\n"
                                                    "Gasket\n"
                                                    "  kind of thickness behavior: 10\n"
                                                    "  yield onset by: relative\n"
                                                    "  yield onset, relative value: 0.1\n"
                                                    "  yield onset, closure: 0.1 mm\n"
                                                    "  tensile stiffness factor: 0.001\n"
                                                    "  unloading data: yes\n"
                                                    "  loading, not temperature dependent\n"
                                                    "  pressure [MPa]  closure [mm]  temperature [degC]\n"
                                                    "               0          0.00                  20\n"
                                                    "               2          0.04                  20\n"
                                                    "               5          0.08                  20\n"
                                                    "  source: page 8\n"
                                                    "  initial thickness, on the card: 2 mm\n"));
}

TEST(ShowReport, PrintsAUserMaterial) {
    const StoredCard stored(R"({"name": "Small", "user_material": {"type": "THERMAL", "constants": [45, 0.5],
        "meaning": "conductivity, exponent", "source": "page 9"}})");

    EXPECT_THAT(Printed(stored.material),
                HasSubstr("\n"
                          "User material\n"
                          "  type: THERMAL\n"
                          "  unsymmetric stiffness matrix: no\n"
                          "  solution-dependent state variables: 0\n"
                          "  constants, in the routine's own order and units\n"
                          "  constant\n"
                          "      45.0\n"
                          "       0.5\n"
                          "  meaning of the constants, on the card: conductivity, exponent\n"
                          "  source, on the card: page 9\n"));
}

constexpr const char* kTwoFits = R"json({"name": "Rubber", "hyperelastic": [
    {"model": "NEO_HOOKE", "order": 1, "temperature_dependent": false, "columns": ["C10"], "rows": [[195000]],
     "potential": "W = C10 (I1 - 3)", "rms_relative_deviation": 0.223, "source": "page 10"},
    {"model": "MOONEY_RIVLIN", "order": 1, "temperature_dependent": false, "columns": ["C10", "C01"],
     "rows": [[171300, 4700]], "variant": "uniaxial"}]})json";

TEST(ShowReport, SaysWhichFitIsStored) {
    EXPECT_THAT(Printed(StoredCard(kTwoFits).material),
                HasSubstr("\n"
                          "Hyperelastic, not temperature dependent\n"
                          "  model: NEO_HOOKE\n"
                          "  order: 1\n"
                          "  C10 [MPa]  D1 [1/MPa]\n"
                          "      0.195           0\n"
                          "  source: page 10\n"
                          "  strain energy: W = C10 (I1-3)\n"
                          "  initial shear modulus mu0: 0.39 MPa\n"
                          "  initial bulk modulus K0: none, incompressible\n"
                          "  potential, on the card: W = C10 (I1 - 3)\n"
                          "  relative deviation from the tests, RMS, on the card: 0.223\n"
                          "\n"
                          "hyperelastic fits on the card: 2, stored: NEO_HOOKE\n"
                          "  not stored: MOONEY_RIVLIN (uniaxial)\n"
                          "  choose with --model and --variant, or show each with --all-models\n"));
}

TEST(ShowReport, SaysNothingAboutASingleFit) {
    const StoredCard stored(R"({"name": "Rubber", "hyperelastic": [{"model": "NEO_HOOKE", "order": 1,
        "temperature_dependent": false, "columns": ["C10"], "rows": [[195000]]}]})");

    EXPECT_THAT(Printed(stored.material), testing::Not(HasSubstr("fits")));
}

TEST(ShowReport, SaysWhenTheValuesAreMadeUp) {
    zelmat::Material card;
    card.name = "Small";
    card.illustrative = true;

    EXPECT_EQ(Printed({.given = &card}), "Small\nillustrative: the values are made up\n\n");
}

TEST(ShowReport, PrintsTheSameAsJson) {
    const StoredCard stored(kTwoFits);
    nlohmann::json told = zelmat::ToJson(stored.material, zelmat::UnitChoice::Si());
    const auto off = told["switched_off"].get<std::vector<std::string>>();
    EXPECT_THAT(off, testing::IsSupersetOf({"elastic", "plastic", "gasket_transverse_shear"}));
    EXPECT_THAT(off, testing::Not(testing::Contains("hyperelastic")));
    EXPECT_EQ(told["features"], FeaturesOfAMaterial() + 1) << "one for the row of coefficients";
    told.erase("switched_off");
    told.erase("features");
    EXPECT_EQ(told, nlohmann::json::parse(R"json(
           {"name": "Rubber", "description": "", "class": "", "source": [], "notes": [], "illustrative": false,
            "heat_generation": false,
            "switched_on": ["hyperelastic"],
            "behaviors": [{"name": "hyperelastic",
                "values": {"model": {"value": "NEO_HOOKE"}, "order": {"value": 1}},
                "tables": [{"table": "", "temperature_dependent": false,
                    "columns": [{"name": "C10", "unit": "Pa"}, {"name": "D1", "unit": "1/Pa"}],
                    "rows": [[195000.0, 0.0]]}],
                "derived": [{"name": "strain_energy", "value": "W = C10 (I1-3)"},
                    {"name": "initial_shear_modulus", "value": 390000.0, "unit": "Pa"},
                    {"name": "initial_bulk_modulus", "value": "none, incompressible"}],
                "on_the_card": {"potential": {"value": "W = C10 (I1 - 3)"},
                    "rms_relative_deviation": {"value": 0.223}}, "kept": {}}],
            "fits": ["NEO_HOOKE", "MOONEY_RIVLIN (uniaxial)"],
            "for_information": {}, "kept": {}})json"));
}

TEST(ShowReport, LetsNoTextOfACardForgeALineOrReachTheTerminal) {
    zelmat::Material card;
    card.name = "Steel\nswitched on: everything";
    card.description = "\x1b[2Jgone";

    EXPECT_EQ(Printed({.given = &card}), "Steel\\nswitched on: everything\n\\x1b[2Jgone\n\n");
}

}  // namespace
