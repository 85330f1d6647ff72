#include "zelmat/properties/LaminateProperty.h"
#include "tests/zelmat/properties/SampleCard.h"
#include "tests/zelmat/support/CardFile.h"
#include "tests/zelmat/support/Program.h"
#include "zelmat/layups/LayupCardReader.h"
#include "zelmat/mechanics/laminate/LaminateStiffness.h"

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
