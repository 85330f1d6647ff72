#include "zelmat/properties/LaminateProperty.h"
#include "tests/zelmat/properties/SampleCard.h"
#include "tests/zelmat/support/CardFile.h"
#include "tests/zelmat/support/Program.h"
#include "zelmat/layups/LayupCardReader.h"
#include "zelmat/mechanics/laminate/LaminateStiffness.h"
#include "zelmat/properties/PlyOfMaterial.h"

namespace {

using testing::DoubleEq;
using testing::Pair;
using testing::UnorderedElementsAre;
using zelmat::PlyMaterialOf;

zelmat::LayupCard SampleLayup(const std::string& name) {
    zelmat::Findings findings;
    return zelmat::LayupCardReader(findings).Read(Sample("layups/" + name + ".json")).value();
}

// A. K. Kaw, Mechanics of Composite Materials, example 4.2.
TEST(LaminateProperty, IsTheLaminateOfALayupCard) {
    const auto laminate = zelmat::LaminateOf(SampleLayup("kaw_0_30_m45"));

    ASSERT_TRUE(laminate.Ok());
    const auto stiffness = zelmat::mechanics::StiffnessOf(*laminate);
    EXPECT_NEAR(stiffness->a[0][0], 1.739e9, 0.5e6);
    EXPECT_NEAR(stiffness->b[0][0], -3.129e6, 0.5e3);
    EXPECT_NEAR(stiffness->d[0][0], 33430.0, 5.0);
}

TEST(LaminateProperty, NumbersTheMaterialsAsLayersNeedThem) {
    const auto sandwich = zelmat::LaminateOf(SampleLayup("sandwich_t300_rohacell"));

    ASSERT_TRUE(sandwich.Ok());
    ASSERT_EQ(sandwich->materials.size(), 2u);
    EXPECT_EQ(sandwich->layers[2].material, 1u);
    EXPECT_EQ(sandwich->materials[1].elastic.e1, 105e6);
    EXPECT_EQ(sandwich->materials[1].density, 75.0);
}

TEST(LaminateProperty, NamesWhatAPlyLacks) {
    zelmat::LayupCard card = SampleLayup("kaw_0_30_m45");
    card.materials[0].constants = {{"E1", 1e9}, {"nu12", 0.3}};
    EXPECT_EQ(zelmat::LaminateOf(card).Why(),
              "ply material 'graphite/epoxy': it has no E2, G12 (or E and nu of an isotropic one)");
    card.layers[1].material.reset();
    card.materials[0].constants = {{"E", 1e9}, {"nu", 0.25}};
    EXPECT_EQ(zelmat::LaminateOf(card).Why(), "layer 2 has no material");
}

TEST(LaminateProperty, TakesIsotropicPliesAndStrengths) {
    const auto ply = PlyMaterialOf({{"E", 2.5e9},
                                    {"nu", 0.25},
                                    {"alpha", 1e-5},
                                    {"Xt", 5.0},
                                    {"Xc", 4.0},
                                    {"Yt", 3.0},
                                    {"Yc", 2.0},
                                    {"S", 1.0}});
    ASSERT_TRUE(ply.Ok());
    EXPECT_DOUBLE_EQ(ply->elastic.g12, 1e9);
    EXPECT_EQ(ply->expansion->alpha2, 1e-5);
    EXPECT_EQ(ply->strength->yt, 3.0);

    EXPECT_EQ(PlyMaterialOf({{"E", 1e9}, {"nu", 0.25}, {"Xt", 5.0}}).Why(),
              "of its strengths Xc, Yt, Yc, S is missing");
    EXPECT_EQ(PlyMaterialOf({{"E", 1e9}, {"nu", 0.25}, {"alpha1", 1e-6}}).Why(),
              "of its thermal expansion alpha2 is missing");
    EXPECT_FALSE(PlyMaterialOf({{"E", 1e9}, {"nu", 0.25}})->expansion.has_value());
    EXPECT_FALSE(PlyMaterialOf({{"E", 1e9}, {"nu", 0.5}}).Ok());
    EXPECT_FALSE(PlyMaterialOf({{"E1", 1e9}, {"E2", 1e9}, {"nu12", 1.5}, {"G12", 1e9}}).Ok());
}

/// Linear between 20 degC (70 GPa, 2700 kg/m3) and 220 degC (50 GPa, 2600 kg/m3); 23e-6 at 120 degC and
/// 24e-6 at 220 degC from 20 degC.
zelmat::Material WarmAluminium() {
    zelmat::Findings findings;
    const CardFile file(R"({"name": "Al", "elastic": {"temperature_dependent": true,
        "columns": ["E [GPa]", "nu", "T [degC]"], "rows": [[70, 0.33, 20], [50, 0.35, 220]]},
        "density": {"temperature_dependent": true, "columns": ["density", "T [degC]"],
        "rows": [[2700, 20], [2600, 220]]},
        "thermal_expansion": {"temperature_dependent": true, "columns": ["alpha [1e-6/K]", "T [degC]"],
        "rows": [[23, 120], [24, 220]], "reference_temperature": "20 degC"}})");
    return zelmat::ReadCard(file.Path(), findings).value();
}

TEST(LaminateProperty, TakesBlocksThatDependOnTemperatureAtTheOneOfTheLaminate) {
    const auto ply = zelmat::PlyOfMaterial(WarmAluminium(), {.temperature = 393.15, .change = 100.0});

    EXPECT_THAT(ply.lacking, testing::IsEmpty());
    EXPECT_NEAR(ply.Constant("E").value(), 60e9, 1e-3);
    EXPECT_NEAR(ply.Constant("nu").value(), 0.34, 1e-15);
    EXPECT_NEAR(ply.Constant("density").value(), 2650.0, 1e-9);
    EXPECT_NEAR(ply.Constant("alpha").value(), 23e-6, 1e-17);
    // eps(220) = 24e-6 * 200, eps(120) = 23e-6 * 100; over 100 K
    const auto warmer = zelmat::PlyOfMaterial(WarmAluminium(), {.temperature = 493.15, .change = 100.0});
    EXPECT_NEAR(warmer.Constant("alpha").value(), 25e-6, 1e-17);
    // without a change the instantaneous one: 24e-6 + 1e-8 * 200
    const auto at = zelmat::PlyOfMaterial(WarmAluminium(), {.temperature = 493.15});
    EXPECT_NEAR(at.Constant("alpha").value(), 26e-6, 1e-17);
}

TEST(LaminateProperty, SaysWhichBlocksGiveNoConstants) {
    EXPECT_THAT(
        zelmat::PlyOfMaterial(WarmAluminium()).lacking,
        testing::ElementsAre(
            "elastic of Al: the table depends on temperature, and none is given (it goes from 293.15 K "
            "to 493.15 K)",
            "thermal_expansion of Al: the table depends on temperature, and none is given (it goes "
            "from 393.15 K to 493.15 K)",
            "density of Al: the table depends on temperature, and none is given (it goes from 293.15 K "
            "to 493.15 K)"));
    const auto hot = zelmat::PlyOfMaterial(WarmAluminium(), {.temperature = 500.0});
    EXPECT_EQ(hot.lacking.at(0),
              "elastic of Al: the temperature lies outside the table (it goes from 293.15 K to 493.15 K)");
    EXPECT_TRUE(hot.constants.empty());
}

TEST(LaminateProperty, FindsThePlyConstantsThatAMaterialKeeps) {
    zelmat::Findings findings;
    const CardFile file(R"({"name": "Ply", "orthotropic": {"E1": "181 GPa", "E2": 10.3e9, "nu12": 0.28,
        "G12": "7.17 GPa"}, "Xt": "1500 MPa",
        "density": {"temperature_dependent": false, "columns": ["density"], "rows": [[1600]]}})");
    const auto card = zelmat::ReadCard(file.Path(), findings);

    ASSERT_TRUE(card.has_value());
    EXPECT_THAT(zelmat::PlyConstantsOf(*card),
                UnorderedElementsAre(Pair("E1", DoubleEq(181e9)), Pair("E2", 10.3e9), Pair("nu12", 0.28),
                                     Pair("G12", DoubleEq(7.17e9)), Pair("Xt", DoubleEq(1.5e9)),
                                     Pair("density", 1600.0)));
}

TEST(LaminateProperty, TakesAnElasticMaterialForAnIsotropicPly) {
    EXPECT_THAT(zelmat::PlyConstantsOf(SampleCard("foam_rohacell71")),
                testing::IsSupersetOf(
                    {Pair(testing::Eq("E"), testing::Eq(105e6)), Pair(testing::Eq("nu"), testing::Eq(0.4))}));
}

}  // namespace
