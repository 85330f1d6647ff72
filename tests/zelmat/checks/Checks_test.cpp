#include "zelmat/checks/Checks.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "tests/zelmat/support/CardFile.h"
#include "zelmat/cards/ReadCard.h"

namespace {

using namespace zelmat;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> Checked(const std::string& text) {
    const CardFile file(text);
    Findings findings;
    const auto material = ReadCard(file.Path(), findings);
    EXPECT_TRUE(findings.All().empty()) << text;
    std::vector<std::string> lines;
    if (!material) return lines;
    const Findings found = CheckMaterial(*material);
    for (const Finding& finding : found.All()) lines.push_back(file.Shorten(FindingLine(finding)));
    return lines;
}

TEST(Checks, FindAModulusInMPaAndADensityInTonnesPerCubicMillimetre) {
    EXPECT_THAT(
        Checked(R"({"name": "M",
                    "elastic": {"temperature_dependent": false, "columns": ["youngs_modulus", "poissons_ratio"],
                                "rows": [[210000, 0.3]]},
                    "density": {"temperature_dependent": false, "columns": ["density"],
                                "rows": [[7.85e-9]]}})"),
        ElementsAre(
            "card.json:3: warning[implausible-modulus]: row 1 of elastic: Young's modulus is 210000 Pa "
            "(expected 5e+05 to 1.25e+12 Pa for any material, in MPa it would be plausible)",
            "card.json:5: error[impossible-density]: row 1 of density: density is 7.85e-09 kg/m3 "
            "(beyond 0.1 to 23000 kg/m3 there is no solid, in t/mm3 it would be plausible)"));
}

TEST(Checks, FindADensityInGramsPerCubicCentimetreByTheSpeedOfSound) {
    EXPECT_THAT(
        Checked(R"({"name": "M",
                    "elastic": {"temperature_dependent": false, "columns": ["youngs_modulus", "poissons_ratio"],
                                "rows": [[210e9, 0.3]]},
                    "density": {"temperature_dependent": false, "columns": ["density"],
                                "rows": [[7.85]]}})"),
        ElementsAre("card.json:3: error[impossible-speed-of-sound]: the speed of sound sqrt(E/density) is "
                    "163600 m/s for E 2.1e+11 Pa and density 7.85 kg/m3 (beyond 0.3 to 36100 m/s there is no "
                    "solid)",
                    "card.json:5: warning[implausible-density]: row 1 of density: density is 7.85 kg/m3 "
                    "(expected 10 to 22700 kg/m3 for any material, in g/cm^3 it would be plausible)"));
}

TEST(Checks, HoldAMaterialAgainstTheBandOfItsClass) {
    const std::string rest = R"("density": {"temperature_dependent": false, "columns": ["density"],
                                            "rows": [[2500]]}})";
    EXPECT_THAT(Checked(R"({"name": "M", "class": "foam", )" + rest),
                ElementsAre("card.json:2: warning[implausible-density]: row 1 of density: density is 2500 "
                            "kg/m3 (expected 10 to 1500 kg/m3 for a foam)"));
    EXPECT_THAT(Checked(R"({"name": "M", "class": "concrete", )" + rest), IsEmpty());
    EXPECT_THAT(Checked(R"({"name": "M", )" + rest), IsEmpty());
}

TEST(Checks, LeaveSoundFoamsAndCeramicsAlone) {
    const auto elastic = [](const char* materialClass, const char* row) {
        return R"({"name": "M", "class": ")" + std::string(materialClass) +
               R"(", "elastic": {"temperature_dependent": false, "columns": ["youngs_modulus",
                   "poissons_ratio"], "rows": [)" +
               row + "]}}";
    };
    EXPECT_THAT(Checked(elastic("foam", "[60e3, 0.1]")), IsEmpty()) << "soft polyurethane";
    EXPECT_THAT(Checked(elastic("foam", "[72e3, -0.7]")), IsEmpty()) << "re-entrant";
    EXPECT_THAT(Checked(R"({"name": "ZrW2O8", "class": "ceramic", "E": "88 GPa", "nu": 0.3,
                    "thermal_expansion": {"alpha": "-8.7e-6 1/K", "Tref": "20 degC"}})"),
                IsEmpty());
}

TEST(Checks, FindATemperatureReferenceWhoseUnitNobodySaid) {
    EXPECT_THAT(Checked(R"({"name": "M", "E": "210 GPa", "nu": 0.3,
"thermal_expansion": {"alpha": "12e-6 1/K", "Tref": 20}})"),
                ElementsAre("card.json:2: warning[implausible-reference-temperature]: the reference "
                            "temperature of thermal_expansion is 20 K (hardly below 100 K, in degC it would "
                            "be plausible)"));
}

TEST(Checks, JudgeBothConstantsOfJohnsonAndCooksLaw) {
    EXPECT_THAT(Checked(R"({"name": "M", "class": "metal", "E": "210 GPa", "nu": 0.3,
"plastic": {"hardening": "johnson-cook", "A": "792 MPa", "B": "510 GPa", "n": 0.26, "m": 1.03,
"melting_temperature": "1793 K", "transition_temperature": "298 K"}})"),
                ElementsAre(testing::HasSubstr("error[impossible-yield-stress]: row 1 of plastic: A + B, the "
                                               "stress at plastic strain 1, is 5.108e+11 Pa")));
}

TEST(Checks, JudgeATableByItsRowsNearRoomTemperature) {
    const auto conductivity = [](const std::string& rows) {
        return R"({"name": "M", "class": "metal", "conductivity": {"temperature_dependent": true,
                   "columns": ["conductivity", "temperature"], "rows": )" +
               rows + "}}";
    };
    EXPECT_THAT(Checked(conductivity("[[1500, 20], [400, 293]]")), IsEmpty());
    EXPECT_THAT(Checked(conductivity("[[1500, 20], [1400, 30]]")),
                ElementsAre(testing::HasSubstr("row 2 of conductivity: conductivity is 1400 W/(m K)")));
}

TEST(Checks, FindATemperatureThatComesBackAndOneThatFalls) {
    const auto hardening = [](const std::string& rows) {
        return R"({"name": "M",
                   "elastic": {"temperature_dependent": false, "columns": ["youngs_modulus", "poissons_ratio"],
                               "rows": [[210e9, 0.3]]},
                   "plastic": {"hardening": "isotropic", "temperature_dependent": true,
                               "columns": ["yield_stress", "plastic_strain", "temperature"], "rows": )" +
               rows + "}}";
    };
    EXPECT_THAT(
        Checked(hardening("[[4e8, 0, 293], [3e8, 0, 400], [4e8, 0, 293]]")),
        ElementsAre("card.json:5: error[scattered-curve]: row 3 of plastic: temperature is 293 K (the "
                    "rows of one temperature have to stand together, the curve of this temperature "
                    "has ended above)"));
    EXPECT_THAT(Checked(hardening("[[3e8, 0, 400], [4e8, 0, 293], [5e8, 0.1, 293]]")),
                ElementsAre("card.json:5: error[temperature-order]: row 2 of plastic: temperature is 293 K "
                            "(has to be above the one before, the row before has 400 K)"));
}

TEST(Checks, LeaveModulusAndPoissonsRatioThatWereSwappedNoWayOut) {
    EXPECT_THAT(
        Checked(R"({"name": "M",
                    "elastic": {"temperature_dependent": false, "columns": ["youngs_modulus", "poissons_ratio"],
                                "rows": [[0.3, 210e9]]}})"),
        ElementsAre(
            testing::HasSubstr("error[poissons-ratio]: row 1 of elastic: Poisson's ratio is 2.1e+11"),
            testing::HasSubstr("error[impossible-modulus]: row 1 of elastic: Young's modulus is 0.3")));
}

TEST(Checks, TakeACurveOfTotalStrainForWhatItIs) {
    const CardFile file(R"({"name": "M",
        "elastic": {"temperature_dependent": false, "columns": ["E", "nu"], "rows": [[200e9, 0.3]]},
        "plastic": {"hardening": "isotropic", "temperature_dependent": false,
                    "columns": ["yield_stress", "plastic_strain", "temperature"],
                    "rows": [[4e8, 0.002, 293], [3e8, 0.1, 293]]}})");
    Findings findings;
    auto material = ReadCard(file.Path(), findings);
    ASSERT_TRUE(material);
    EXPECT_TRUE(CheckMaterial(*material).HasErrors());
    material->blocks[1].values.Set("strain", std::string("total"));
    EXPECT_FALSE(CheckMaterial(*material).HasErrors());
}

std::vector<std::string> CodesOf(const std::string& text) {
    const CardFile file(text);
    Findings findings;
    const auto material = ReadCard(file.Path(), findings);
    EXPECT_TRUE(material);
    std::vector<std::string> codes;
    const Findings checked = CheckMaterial(*material);
    for (const Finding& finding : checked.All()) codes.push_back(finding.code);
    return codes;
}

TEST(Checks, JudgeACurveOfEngineeringStressAsItWouldBeStored) {
    const auto card = [](const std::string& rows) {
        return R"({"name": "M", "class": "metal",
            "elastic": {"temperature_dependent": false, "columns": ["E", "nu"], "rows": [[200e9, 0.3]]},
            "plastic": {"hardening": "isotropic", "temperature_dependent": false, "stress": "engineering",
                        "strain": "total", "columns": ["yield_stress", "plastic_strain", "temperature"], "rows": )" +
               rows + "}}";
    };
    // Engineering stress stays at 500 MPa while true stress rises from 501.25 to 550 MPa.
    EXPECT_THAT(CodesOf(card("[[5e8, 0.0025, 293], [5e8, 0.1, 293]]")), testing::IsEmpty());
    // From 501.25 MPa to 400 MPa times 1.1: it falls as stored, too.
    EXPECT_THAT(CodesOf(card("[[5e8, 0.0025, 293], [4e8, 0.1, 293]]")), testing::ElementsAre("softening"));
    EXPECT_THAT(CodesOf(card("[[5e8, 0.0025, 293], [5.5e8, 0.1, 293], [5.6e8, 0.09, 293]]")),
                testing::Contains("plastic-strain-order"));
}

TEST(Checks, JudgeOgdensCoefficientsByTheConventionTheyAreIn) {
    const auto card = [](const std::string& says) {
        return R"({"name": "M", "class": "elastomer", "hyperelastic": [{"model": "OGDEN", "order": 2,
            "temperature_dependent": false, "columns": ["mu_1", "alpha_1", "mu_2", "alpha_2"],
            "rows": [[0.63e6, 1.3, -0.7e6, -2]])" +
               says + "}]}";
    };
    // mu0 is the sum of mu, -0.07 MPa; or half the sum of mu times alpha, 1.11 MPa.
    EXPECT_THAT(CodesOf(card("")), testing::ElementsAre("initial-shear-modulus"));
    EXPECT_THAT(CodesOf(card(R"(, "ogden_convention": "mu/alpha")")), testing::IsEmpty());
    EXPECT_THAT(CodesOf(card(R"_(, "potential": "W = sum (mu_i/alpha_i) (...)")_")), testing::IsEmpty());
}

TEST(Checks, FindOtherConstantsByTheirNamesInTheField) {
    const std::string steel =
        R"("elastic": {"temperature_dependent": false, "columns": ["E", "nu"], "rows": [[210e9, 0.3]]})";
    for (const char* wrong :
         {R"("ShearModulus": "60 GPa")", R"("G": "60 GPa")", R"("G": 60e9)", R"("K": "60 GPa")",
          R"("Bulk Modulus": "60 GPa")", R"("modulus-of-rigidity": "60 GPa")",
          R"("other_properties": {"ModulusOfShare": "60000 MPa"})"}) {
        EXPECT_THAT(CodesOf("{\"name\": \"M\", " + steel + ", " + wrong + "}"),
                    testing::ElementsAre("elastic-constants"))
            << wrong;
    }
    EXPECT_THAT(CodesOf("{\"name\": \"M\", " + steel + R"(, "other_properties": {"k": 50, "g": 9.81}})"),
                testing::IsEmpty())
        << "a conductivity and gravity";
}

TEST(Checks, FindOnlyWhatTheSamplesSayOfThemselves) {
    std::vector<std::string> found;
    for (const auto& entry : std::filesystem::directory_iterator(ZELMAT_SAMPLES)) {
        if (entry.path().extension() != ".json") continue;
        Findings findings;
        const auto material = ReadCard(entry.path(), findings);
        ASSERT_TRUE(material) << entry.path();
        const Findings checked = CheckMaterial(*material);
        for (const Finding& finding : checked.All()) {
            found.push_back(entry.path().filename().string() + ":" + std::to_string(finding.place.line) +
                            ": " + KindWord(finding.kind) + " " + finding.code);
        }
    }
    EXPECT_THAT(found, ElementsAre("gasket_fibre_illustrative.json:82: warning unloading-above-loading",
                                   "gasket_fibre_illustrative.json:86: warning unloading-above-loading"));
}

TEST(Checks, SurviveAMaterialWithoutAnything) {
    EXPECT_THAT(CheckMaterial({.file = "none", .name = {}}).All(), IsEmpty());
}

}  // namespace
