#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/zelmat/exchange/SampleDeck.h"
#include "tests/zelmat/properties/SampleCard.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

std::string Cards(const zelmat::Material& material, const std::string& units = "",
                  const zelmat::FitChoice& fit = {}) {
    return WithoutComments(Exported("calculix", {material}, units, fit).text);
}

std::string Fit(const std::string& model, int order, const std::string& columns, const std::string& row) {
    return R"("hyperelastic": [{"model": ")" + model + R"(", "order": )" + std::to_string(order) +
           R"(, "temperature_dependent": false, "columns": )" + columns + R"(, "rows": [)" + row + "]}]";
}

TEST(CalculixForm, WritesElasticityDensityAndExpansion) {
    EXPECT_EQ(Cards(SampleCard("steel_s235_kinematic")),
              "*MATERIAL, NAME=Structural_steel_S235_bilinear_kinematic\n"
              "*ELASTIC\n2.1e+11, 0.3\n"
              "*PLASTIC, HARDENING=KINEMATIC\n2.35e+08, 0\n341060606, 0.05\n"
              "*DENSITY\n7850\n"
              "*EXPANSION, ZERO=293.15\n1.2e-05\n");
}

TEST(CalculixForm, WritesTheUnitsThatAreWanted) {
    EXPECT_EQ(Cards(SampleCard("steel_s235_kinematic"), "mm-t-s"),
              "*MATERIAL, NAME=Structural_steel_S235_bilinear_kinematic\n"
              "*ELASTIC\n210000, 0.3\n"
              "*PLASTIC, HARDENING=KINEMATIC\n235, 0\n341.060606, 0.05\n"
              "*DENSITY\n7.85e-09\n"
              "*EXPANSION, ZERO=20\n1.2e-05\n");
}

TEST(CalculixForm, NamesUnitsAbsoluteZeroAndSourcesInComments) {
    const auto deck = Exported("calculix", {SampleCard("steel_s235_kinematic")}, "mm-t-s");
    EXPECT_THAT(deck.text,
                HasSubstr("\n** units: stress in MPa, density in t/mm3, thermal expansion in 1/K, "));
    EXPECT_THAT(deck.text, HasSubstr("\n** absolute zero of these temperatures: -273.15 degC\n"));
    EXPECT_THAT(deck.text, HasSubstr("\n** source: EN 1993-1-5:2006, Annex C.6 (tangent slope E/100)\n"));
}

TEST(CalculixForm, WarnsOfKinematicHardeningInLinearSteps) {
    const auto deck = Exported("calculix", {SampleCard("steel_s235_kinematic")});
    EXPECT_THAT(
        deck.findings,
        ElementsAre("warning[solver-limit]: 'Structural steel S235, bilinear kinematic': CalculiX computes "
                    "kinematic hardening wrongly in linear steps: use *STEP, NLGEOM"));
    EXPECT_THAT(deck.text, HasSubstr("\n** solver-limit: CalculiX computes kinematic hardening wrongly"));
}

TEST(CalculixForm, PutsTheTemperatureLast) {
    const auto material = StuffWith(
        R"("conductivity": {"temperature_dependent": true, "columns": ["conductivity", "temperature [degC]"],
            "rows": [[50, 20], [40, 200]]},
           "specific_heat": {"temperature_dependent": true, "columns": ["specific_heat", "temperature"],
            "rows": [[450, 293.15], [500, 473.15]]})");
    EXPECT_EQ(Cards(material, "si,temperature=degC"),
              "*MATERIAL, NAME=Stuff\n*CONDUCTIVITY\n50, 20\n40, 200\n*SPECIFIC HEAT\n450, 20\n500, 200\n");
    EXPECT_THAT(
        Exported("calculix", {material}).findings,
        ElementsAre(HasSubstr("outside a table's temperatures CalculiX takes the nearest row's value")));
}

TEST(CalculixForm, WritesHardeningCurvesAtTheSameStrains) {
    const auto material = StuffWith(std::string(kSomeElastic) +
                                    R"(, "plastic": {"hardening": "isotropic", "temperature_dependent": true,
            "columns": ["yield_stress", "plastic_strain", "temperature"],
            "rows": [[200e6, 0, 300], [300e6, 0.1, 300], [100e6, 0, 400], [160e6, 0.06, 400]]})");
    EXPECT_EQ(Cards(material),
              "*MATERIAL, NAME=Stuff\n*ELASTIC\n2e+11, 0.3\n*PLASTIC\n"
              "2e+08, 0, 300\n2.6e+08, 0.06, 300\n3e+08, 0.1, 300\n"
              "1e+08, 0, 400\n1.6e+08, 0.06, 400\n1.6e+08, 0.1, 400\n");
    EXPECT_THAT(Exported("calculix", {material}).findings,
                Contains(HasSubstr("each curve is written at the plastic strains of all")));
}

TEST(CalculixForm, TabulatesJohnsonAndCooksLaw) {
    const auto deck = Exported("calculix", {SampleCard("copper_ofhc")});
    const std::string cards = WithoutComments(deck.text);
    EXPECT_THAT(cards, HasSubstr("*PLASTIC\n9e+07, 0, 298\n"));
    EXPECT_THAT(cards, Not(HasSubstr("JOHNSON")));
    EXPECT_THAT(deck.findings, Contains(HasSubstr("HARDENING=JOHNSON COOK is run as isotropic")));
    EXPECT_THAT(deck.findings, Contains(HasSubstr("the stress is up to 0.61 % off the law")));
}

TEST(CalculixForm, LeavesOutHardeningWithoutElasticity) {
    const auto deck = Exported(
        "calculix", {StuffWith(std::string(kSomeDensity) +
                               R"(, "plastic": {"hardening": "isotropic", "temperature_dependent": false,
            "columns": ["yield_stress", "plastic_strain", "temperature"], "rows": [[200e6, 0, 300]]})")});
    EXPECT_EQ(WithoutComments(deck.text), "*MATERIAL, NAME=Stuff\n*DENSITY\n8000\n");
    EXPECT_THAT(deck.findings,
                ElementsAre("warning[not-carried]: 'Stuff': plastic isotropic: it needs an elastic "
                            "behavior beside it"));
}

TEST(CalculixForm, WritesEveryPotentialThatItHas) {
    const auto cards = [](const std::string& model, int order, const std::string& columns,
                          const std::string& row) {
        return Cards(StuffWith(Fit(model, order, columns, row))).substr(22);
    };
    EXPECT_EQ(cards("NEO_HOOKE", 1, R"(["C10", "D1"])", "[5e5, 1e-9]"),
              "*HYPERELASTIC, NEO HOOKE\n5e+05, 1e-09\n");
    EXPECT_EQ(cards("MOONEY_RIVLIN", 1, R"(["C10", "C01", "D1"])", "[4e5, 1e5, 1e-9]"),
              "*HYPERELASTIC, MOONEY-RIVLIN\n4e+05, 1e+05, 1e-09\n");
    EXPECT_EQ(
        cards("YEOH", 3, R"(["C10", "C20", "C30", "D1", "D2", "D3"])", "[5e5, -1e4, 1e3, 1e-9, 2e-9, 3e-9]"),
        "*HYPERELASTIC, YEOH\n5e+05, -10000, 1000, 1e-09, 2e-09, 3e-09\n");
    EXPECT_EQ(cards("ARRUDA_BOYCE", 1, R"(["mu", "lambda_m", "D"])", "[1e6, 3, 1e-9]"),
              "*HYPERELASTIC, ARRUDA-BOYCE\n1e+06, 3, 1e-09\n");
    EXPECT_EQ(cards("REDUCED_POLYNOMIAL", 2, R"(["C10", "C20", "D1", "D2"])", "[5e5, 1e4, 1e-9, 2e-9]"),
              "*HYPERELASTIC, REDUCED POLYNOMIAL, N=2\n5e+05, 10000, 1e-09, 2e-09\n");
    EXPECT_EQ(cards("POLYNOMIAL", 1, R"(["C10", "C01", "D1"])", "[4e5, 1e5, 1e-9]"),
              "*HYPERELASTIC, POLYNOMIAL, N=1\n4e+05, 1e+05, 1e-09\n");
}

TEST(CalculixForm, GoesOnBehindEightNumbers) {
    const auto material = StuffWith(
        Fit("OGDEN", 3, R"(["mu_1", "alpha_1", "mu_2", "alpha_2", "mu_3", "alpha_3", "D1", "D2", "D3"])",
            "[4e5, 1.3, 3e3, 5, 1e4, -2, 1e-9, 2e-9, 3e-9]"));
    EXPECT_EQ(Cards(material),
              "*MATERIAL, NAME=Stuff\n*HYPERELASTIC, OGDEN, N=3\n"
              "4e+05, 1.3, 3000, 5, 10000, -2, 1e-09, 2e-09\n3e-09\n");
}

TEST(CalculixForm, WritesNoDOfZero) {
    const auto deck = Exported("calculix", {StuffWith(Fit("NEO_HOOKE", 1, R"(["C10"])", "[5e5]"))});
    EXPECT_THAT(deck.text, HasSubstr("*HYPERELASTIC, NEO HOOKE\n5e+05, 1e-10\n"));
    EXPECT_THAT(deck.findings, Contains(HasSubstr("D = 0 (incompressible) is written as D1 = 1e-4/mu0")));
}

TEST(CalculixForm, CarriesNoOrderAboveThree) {
    const auto deck =
        Exported("calculix", {SampleCard("natural_rubber_treloar")}, "", {"REDUCED_POLYNOMIAL", ""});
    EXPECT_THAT(deck.text, Not(HasSubstr("*HYPERELASTIC")));
    EXPECT_THAT(deck.findings,
                Contains("warning[not-carried]: 'Vulcanised natural rubber (Treloar, 8 % sulphur)': "
                         "hyperelastic REDUCED_POLYNOMIAL: order 4; CalculiX goes to order 3"));
}

TEST(CalculixForm, TellsWhatItHasNoPlaceFor) {
    EXPECT_THAT(
        Exported("calculix", {SampleCard("natural_rubber_treloar")}, "", {"VAN_DER_WAALS", ""}).findings,
        Contains(HasSubstr("hyperelastic VAN_DER_WAALS: it has no such potential")));
    EXPECT_THAT(Exported("calculix", {SampleCard("gasket_fibre_illustrative")}).findings,
                Contains(HasSubstr("gasket: it has no element law")));
}

TEST(CalculixForm, ConvertsOgdensCoefficientsOfTheOtherConvention) {
    const auto deck = Exported("calculix", {SampleCard("natural_rubber_treloar")}, "", {"OGDEN", ""});
    EXPECT_THAT(deck.text,
                HasSubstr("*HYPERELASTIC, OGDEN, N=3\n409500, 1.3, 3000, 5, 10000, -2, 2.36686e-10, 0\n0\n"));
    EXPECT_THAT(deck.text, HasSubstr("** changed-in-deck: the coefficients of OGDEN were converted"));
}

TEST(CalculixForm, WritesEightUserConstantsALineAndOneMoreLineBehindAFullOne) {
    const auto user = [](const std::string& constants) {
        return Cards(
            StuffWith(R"("user_material": {"type": "MECHANICAL", "state_variables": 3, "constants": )" +
                      constants + "}"));
    };
    EXPECT_EQ(user("[1, 2, 3]"), "*MATERIAL, NAME=Stuff\n*USER MATERIAL, CONSTANTS=3\n1, 2, 3\n*DEPVAR\n3\n");
    EXPECT_EQ(user("[1, 2, 3, 4, 5, 6, 7, 8]"),
              "*MATERIAL, NAME=Stuff\n*USER MATERIAL, CONSTANTS=8\n1, 2, 3, 4, 5, 6, 7, 8\n0.\n*DEPVAR\n3\n");
    EXPECT_EQ(user("[1, 2, 3, 4, 5, 6, 7, 8, 9]"),
              "*MATERIAL, NAME=Stuff\n*USER MATERIAL, CONSTANTS=9\n1, 2, 3, 4, 5, 6, 7, 8\n9\n*DEPVAR\n3\n");
}

TEST(CalculixForm, WritesAThermalUserMaterialWithItsType) {
    EXPECT_EQ(Cards(StuffWith(R"("user_material": {"type": "THERMAL", "constants": [5]})")),
              "*MATERIAL, NAME=Stuff\n*USER MATERIAL, CONSTANTS=1, TYPE=THERMAL\n5\n");
}

TEST(CalculixForm, TakesOneLawOfStress) {
    const auto deck =
        Exported("calculix", {StuffWith(std::string(kSomeElastic) + ", " +
                                        Fit("NEO_HOOKE", 1, R"(["C10", "D1"])", "[5e5, 1e-9]"))});
    EXPECT_EQ(WithoutComments(deck.text), "*MATERIAL, NAME=Stuff\n*HYPERELASTIC, NEO HOOKE\n5e+05, 1e-09\n");
    EXPECT_THAT(deck.findings,
                ElementsAre("warning[not-carried]: 'Stuff': elastic: a material of the deck has one "
                            "law of its kind, and that is hyperelastic"));
}

TEST(CalculixForm, IntegratesInstantaneousExpansion) {
    const auto material = StuffWith(
        R"("thermal_expansion": {"temperature_dependent": true, "columns": ["thermal_expansion", "temperature"],
            "rows": [[1e-5, 300], [2e-5, 400]], "reference_temperature": 300, "kind": "instantaneous"})");
    EXPECT_EQ(Cards(material), "*MATERIAL, NAME=Stuff\n*EXPANSION, ZERO=300\n1e-05, 300\n1.5e-05, 400\n");
}

TEST(CalculixForm, WarnsOfAnExpansionWithoutReferenceTemperature) {
    const auto deck = Exported(
        "calculix",
        {StuffWith(
            R"("thermal_expansion": {"temperature_dependent": false, "columns": ["thermal_expansion"],
            "rows": [[1e-5]]})")});
    EXPECT_EQ(WithoutComments(deck.text), "*MATERIAL, NAME=Stuff\n*EXPANSION\n1e-05\n");
    EXPECT_THAT(deck.findings, ElementsAre(HasSubstr("has no reference temperature: CalculiX takes 0")));
}

TEST(CalculixForm, WritesNoDeckWhenAMaterialHasNothingForIt) {
    const auto deck = Exported("calculix", {StuffWith(kSomeDensity), StuffWith(R"("test_data": {"uniaxial":
            {"columns": ["stretch", "nominal_stress"], "rows": [[1.0, 0.0], [1.1, 1000.0]]}})")});
    EXPECT_THAT(deck.files, IsEmpty());
    EXPECT_TRUE(deck.errors);
    EXPECT_THAT(deck.findings,
                Contains("error[nothing-carried]: a deck of CalculiX can hold nothing of 'Stuff' (no deck "
                         "is written)"));
}

TEST(CalculixForm, LetsNoTextBecomeACard) {
    auto material = StuffWith(kSomeDensity);
    material.name = "evil\n*ELASTIC\n1., 2.";
    material.description = "more\r\n*PLASTIC\n5";
    material.sources = {"caf\xc3\xa9\n*INCLUDE, INPUT=/etc/passwd"};
    const auto deck = Exported("calculix", {material});
    EXPECT_EQ(WithoutComments(deck.text), "*MATERIAL, NAME=evil_ELASTIC_1_2\n*DENSITY\n8000\n");
    for (const char character : deck.text)
        EXPECT_TRUE(character == '\n' || (character >= ' ' && character < 0x7f));
}

TEST(CalculixForm, WarnsOfTemperaturesAtWhichTheSolverCannotBegin) {
    const auto material = StuffWith(
        R"("conductivity": {"temperature_dependent": true, "columns": ["conductivity", "temperature"],
            "rows": [[50, 300], [40, 1500]]})");
    EXPECT_THAT(
        Exported("calculix", {material}, "us").findings,
        Contains("warning[solver-limit]: 'Stuff': CalculiX takes an initial temperature above 2147.48 for "
                 "-2147.48 without a word: bring the model there by *TEMPERATURE"));
    EXPECT_THAT(Exported("calculix", {material}).findings, Not(Contains(HasSubstr("solver-limit"))));
}

TEST(CalculixForm, WarnsOfAUserMaterialWhoseNameIsNoRoutines) {
    const auto findings = [](const std::string& name) {
        auto material = StuffWith(R"("user_material": {"type": "MECHANICAL", "constants": [5]})");
        material.name = name;
        return Exported("calculix", {material}).findings;
    };
    EXPECT_THAT(findings("Solder"),
                Contains(HasSubstr("warning[solver-limit]: 'Solder': user_material: CalculiX "
                                   "finds the routine by the beginning of the material's name")));
    EXPECT_THAT(findings("User solder"), Not(Contains(HasSubstr("solver-limit"))));
}

TEST(CalculixForm, TellsMaterialsOfOneNameApart) {
    const auto deck = Exported("calculix", {StuffWith(kSomeDensity), StuffWith(kSomeElastic)});
    EXPECT_EQ(WithoutComments(deck.text),
              "*MATERIAL, NAME=Stuff\n*DENSITY\n8000\n*MATERIAL, NAME=Stuff_2\n*ELASTIC\n2e+11, 0.3\n");
}

TEST(CalculixForm, WarnsOfUnitsThatDoNotGoTogether) {
    EXPECT_THAT(
        Exported("calculix", {StuffWith(kSomeDensity)}, "us").findings,
        Contains(HasSubstr("warning[inconsistent-units]: a solver knows no units, and these do not go with "
                           "psi and in: density in lb/in^3, ")));
}

}  // namespace
