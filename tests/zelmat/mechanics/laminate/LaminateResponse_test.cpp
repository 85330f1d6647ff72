#include "zelmat/mechanics/laminate/LaminateResponse.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/zelmat/mechanics/laminate/SampleLaminate.h"
#include "zelmat/mechanics/laminate/PlyStiffness.h"

namespace {

using namespace zelmat::mechanics;

TEST(LaminateResponse, StrainsTheNasaExampleAsPublished) {
    const auto laminate = SampleLaminate("nasa_rp1351_0_45_s");
    const auto stretched =
        *RespondTo(laminate, {.force = {87563.42, 0, 0}, .moment = {}, .temperatureChange = 0});
    // The source's own numbers are rounded on the way: it differs from the exact ones by up to 0.7 %.
    EXPECT_NEAR(stretched.strain[0], 0.00221, 0.007 * 0.00221);
    EXPECT_NEAR(stretched.strain[1], -0.0007, 5e-6);
    EXPECT_NEAR(stretched.strain[2], -0.00115, 0.007 * 0.00115);
    EXPECT_EQ(stretched.curvature[0], 0);
    const auto bent = *RespondTo(laminate, {.force = {}, .moment = {22.2411, 0, 0}, .temperatureChange = 0});
    EXPECT_NEAR(bent.curvature[0], 16.457, 0.007 * 16.457);
    EXPECT_NEAR(bent.curvature[1], -6.4961, 0.02 * 6.4961);
    EXPECT_NEAR(bent.curvature[2], -3.8386, 0.007 * 3.8386);
}

TEST(LaminateResponse, CarriesTheLoadInItsPlies) {
    const auto laminate = SampleLaminate("kaw_0_30_m45");
    const LaminateLoad load{.force = {1000, 2000, -300}, .moment = {4, -5, 6}, .temperatureChange = 0};
    const auto response = *RespondTo(laminate, load);
    Vector3 force{}, moment{};
    for (const auto& ply : response.plies) {
        const double t = ply.top.z - ply.bottom.z, middle = 0.5 * (ply.top.z + ply.bottom.z);
        for (std::size_t i = 0; i < 3; ++i) {
            const double mean = 0.5 * (ply.top.stress[i] + ply.bottom.stress[i]);
            const double slope = (ply.top.stress[i] - ply.bottom.stress[i]) / t;
            force[i] += mean * t;
            moment[i] += mean * t * middle + slope * t * t * t / 12;
        }
    }
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_NEAR(force[i], load.force[i], 1e-8);
        EXPECT_NEAR(moment[i], load.moment[i], 1e-10);
    }
    EXPECT_EQ(response.plies[0].bottom.z, -0.0075);
    EXPECT_EQ(response.plies[2].top.z, 0.0075);
    EXPECT_EQ(response.plies[0].layer, 0u);
}

TEST(LaminateResponse, TurnsStressAndStrainIntoThePly) {
    // Kaw, example 2.6 and on: 60 degrees, stresses 2, -3, 4 MPa.
    const auto stress = StressInPly({2, -3, 4}, 60);
    EXPECT_NEAR(stress[0], 1.714, 5e-4);
    EXPECT_NEAR(stress[1], -2.714, 5e-4);
    EXPECT_NEAR(stress[2], -4.165, 5e-4);
    const auto strain = StrainInPly({1e-3, 2e-3, 0}, 90);
    EXPECT_EQ(strain[0], 2e-3);
    EXPECT_EQ(strain[1], 1e-3);
    EXPECT_EQ(strain[2], 0);
}

TEST(LaminateResponse, HasPlyStressesThatFollowFromItsPlyStrains) {
    const auto laminate = SampleLaminate("kaw_0_30_m45");
    const auto response =
        *RespondTo(laminate, {.force = {1000, 0, 500}, .moment = {1, 0, 0}, .temperatureChange = 0});
    const auto q = ReducedStiffness(laminate.materials[0].elastic);
    for (const auto& ply : response.plies) {
        const auto expected = Times(q, ply.top.plyStrain);
        for (std::size_t i = 0; i < 3; ++i) {
            EXPECT_NEAR(ply.top.plyStress[i], expected[i], 1e-9 * std::abs(ply.top.plyStress[0]) + 1e-6);
        }
    }
}

TEST(LaminateExpansion, OfOneDirectionIsThatOfThePly) {
    auto ply = GraphiteEpoxy();
    ply.expansion = {0.02e-6, 22.5e-6};
    const auto along = *ExpansionOf(Stacked(ply, 0.001, {0, 0}));
    EXPECT_NEAR(along.strain[0], 0.02e-6, 1e-18);
    EXPECT_NEAR(along.strain[1], 22.5e-6, 1e-18);
    EXPECT_EQ(along.curvature[0], 0);
    const auto turned = *ExpansionOf(Stacked(ply, 0.001, {45}));
    EXPECT_NEAR(turned.strain[2], 0.02e-6 - 22.5e-6, 1e-17);
}

TEST(LaminateExpansion, CurvesAnUnsymmetricLaminateAndLeavesTheForcesAtZero) {
    auto ply = GraphiteEpoxy();
    ply.expansion = {0.02e-6, 22.5e-6};
    const auto laminate = Stacked(ply, 0.001, {0, 90});
    const auto expansion = *ExpansionOf(laminate);
    EXPECT_NEAR(expansion.curvature[0], -expansion.curvature[1], 1e-15);
    EXPECT_GT(std::abs(expansion.curvature[0]), 1e-3);
    // The upper ply is across x and expands more in x than the lower one: the plate bends upwards at its
    // middle.
    EXPECT_GT(expansion.curvature[0], 0);
    const auto hot = *RespondTo(laminate, {.force = {}, .moment = {}, .temperatureChange = -75});
    double force = 0;
    for (const auto& layer : hot.plies) force += 0.5 * (layer.bottom.stress[0] + layer.top.stress[0]) * 0.001;
    EXPECT_NEAR(force, 0, 1e-8);
    EXPECT_GT(hot.plies[1].bottom.plyStress[1], 0);  // cooled down, the plies are pulled across their fibres
}

TEST(LaminateExpansion, OfIsotropicPliesHasNoStress) {
    PlyMaterial steel;
    steel.elastic = {210e9, 210e9, 0.3, 210e9 / 2.6};
    steel.expansion = {12e-6, 12e-6};
    const auto response =
        *RespondTo(Stacked(steel, 0.001, {0, 30}), {.force = {}, .moment = {}, .temperatureChange = 100});
    EXPECT_NEAR(response.strain[0], 12e-4, 1e-15);
    EXPECT_NEAR(response.plies[1].top.stress[0], 0, 1e-3);
}

TEST(LaminateResponse, IsRefusedForAChangeOfTemperatureWhereAnExpansionIsNotKnown) {
    const auto laminate = Stacked(GraphiteEpoxy(), 0.001, {0, 90});
    const char* why = "layer 1: the thermal expansion of its material is not known";
    EXPECT_EQ(RespondTo(laminate, {.force = {}, .moment = {}, .temperatureChange = -75}).Why(), why);
    EXPECT_EQ(ExpansionOf(laminate).Why(), why);
    EXPECT_TRUE(RespondTo(laminate, {.force = {1, 0, 0}, .moment = {}, .temperatureChange = 0}).Ok());
}

TEST(LaminateResponse, IsRefusedForLoadsThatAreNone) {
    EXPECT_EQ(RespondTo(Stacked(GraphiteEpoxy(), 0.001, {0}),
                        {.force = {NAN, 0, 0}, .moment = {}, .temperatureChange = 0})
                  .Why(),
              "a load is not a finite number");
    EXPECT_FALSE(RespondTo({}, {}).Ok());
    EXPECT_FALSE(ExpansionOf({}).Ok());
}

TEST(LaminateResponse, HasNoStressWhereNothingButRoundingIsLeft) {
    const zelmat::mechanics::PlyMaterial steel{
        .elastic = {.e1 = 210e9, .e2 = 210e9, .nu12 = 0.3, .g12 = 210e9 / 2.6},
        .expansion = {},
        .density = {},
        .strength = {}};
    const auto response = zelmat::mechanics::RespondTo(
        Stacked(steel, 1e-3, {0.0}), {.force = {235e3, 0.0, 0.0}, .moment = {}, .temperatureChange = 0.0});
    ASSERT_TRUE(response.Ok());
    EXPECT_NEAR(response->plies[0].top.plyStress[0], 235e6, 1.0);
    EXPECT_EQ(response->plies[0].top.plyStress[1], 0.0);
    EXPECT_EQ(response->plies[0].top.stress[1], 0.0);
}

TEST(LaminateResponse, HasNoStressInAPlyThatExpandsFreely) {
    const zelmat::mechanics::PlyMaterial steel{
        .elastic = {.e1 = 189e9, .e2 = 189e9, .nu12 = 0.3, .g12 = 189e9 / 2.6},
        .expansion = {{.alpha1 = 13.6e-6, .alpha2 = 13.6e-6}},
        .density = {},
        .strength = {}};
    const auto response = zelmat::mechanics::RespondTo(
        Stacked(steel, 1e-3, {0.0}), {.force = {}, .moment = {}, .temperatureChange = 100.0});
    ASSERT_TRUE(response.Ok());
    EXPECT_NEAR(response->plies[0].top.strain[0], 13.6e-4, 1e-15);
    EXPECT_EQ(response->plies[0].top.stress[0], 0.0);
    EXPECT_EQ(response->plies[0].bottom.plyStress[1], 0.0);
}

}  // namespace
