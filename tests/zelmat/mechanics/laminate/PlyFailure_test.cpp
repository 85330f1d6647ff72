#include "zelmat/mechanics/laminate/PlyFailure.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/zelmat/mechanics/laminate/SampleLaminate.h"
#include "zelmat/mechanics/laminate/PlyStiffness.h"

namespace {

using namespace zelmat::mechanics;
using enum FailureCriterion;

/// Graphite/epoxy of Kaw, Mechanics of Composite Materials, table 2.1: Pa.
PlyStrength Strength() {
    return {.xt = 1500e6, .xc = 1500e6, .yt = 40e6, .yc = 246e6, .s = 68e6, .f12 = {}};
}

TEST(PlyFailure, HasTheLoadFactorsOfKawsOffAxisLamina) {
    // Examples 2.13 to 2.18: 60 degrees, sigma_x = 2 S, sigma_y = -3 S, tau_xy = 4 S; S at failure in MPa.
    const auto stress = StressInPly({2e6, -3e6, 4e6}, 60);
    EXPECT_NEAR(MeasureOf(MAXIMUM_STRESS, Strength(), stress).loadFactor.value(), 16.33, 5e-3);
    EXPECT_NEAR(MeasureOf(TSAI_HILL, Strength(), stress).loadFactor.value(), 16.06, 5e-3);
    EXPECT_NEAR(MeasureOf(TSAI_WU, Strength(), stress).loadFactor.value(), 22.39, 5e-3);
}

TEST(PlyFailure, IsReachedWhereTheIndexOfTheFactoredStressIsOne) {
    for (const auto criterion : {MAXIMUM_STRESS, TSAI_HILL, TSAI_WU}) {
        for (const Vector3 stress : {Vector3{300e6, 10e6, 20e6}, Vector3{-300e6, -100e6, 5e6},
                                     Vector3{0, 0, 60e6}, Vector3{100e6, -200e6, 0}, Vector3{0, 39e6, 0}}) {
            const double factor = MeasureOf(criterion, Strength(), stress).loadFactor.value();
            const Vector3 failing = {factor * stress[0], factor * stress[1], factor * stress[2]};
            EXPECT_NEAR(MeasureOf(criterion, Strength(), failing).index, 1, 1e-12) << Keyword(criterion);
        }
    }
}

TEST(PlyFailure, AgreesWithTheStrengthsInEverySimpleTest) {
    for (const auto criterion : {MAXIMUM_STRESS, TSAI_HILL, TSAI_WU}) {
        EXPECT_NEAR(MeasureOf(criterion, Strength(), {750e6, 0, 0}).loadFactor.value(), 2, 1e-12);
        EXPECT_NEAR(MeasureOf(criterion, Strength(), {-500e6, 0, 0}).loadFactor.value(), 3, 1e-12);
        EXPECT_NEAR(MeasureOf(criterion, Strength(), {0, 20e6, 0}).loadFactor.value(), 2, 1e-12);
        EXPECT_NEAR(MeasureOf(criterion, Strength(), {0, -123e6, 0}).loadFactor.value(), 2, 1e-12);
        EXPECT_NEAR(MeasureOf(criterion, Strength(), {0, 0, -17e6}).loadFactor.value(), 4, 1e-12);
        EXPECT_FALSE(MeasureOf(criterion, Strength(), {0, 0, 0}).loadFactor);
    }
}

TEST(PlyFailure, BeginsAcrossTheFibresOfACrossPlyLaminate) {
    auto ply = GraphiteEpoxy();
    ply.strength = Strength();
    const auto laminate = Stacked(ply, 0.000125, {0, 90, 90, 0});
    const LaminateLoad load{.force = {1000, 0, 0}, .moment = {}, .temperatureChange = 0};
    for (const auto criterion : {MAXIMUM_STRESS, TSAI_HILL, TSAI_WU}) {
        const auto failure = *FirstPlyFailure(laminate, load, criterion);
        ASSERT_TRUE(failure);
        EXPECT_EQ(failure->layer, 1u) << Keyword(criterion);
        EXPECT_FALSE(failure->atTop);
    }
    // Stress across the fibres: Q22 eps_x + Q12 eps_y, eps from A of the sample card: 48.0393e6 and 1.44846e6
    // N/m.
    const double determinant = 48039300.0 * 48039300.0 - 1448460.0 * 1448460.0;
    const double ex = 1000 * 48039300.0 / determinant, ey = -1000 * 1448460.0 / determinant;
    const double across = 10.346e9 * ex + 2.8969e9 * ey;
    EXPECT_NEAR((*FirstPlyFailure(laminate, load, MAXIMUM_STRESS))->measure.index, across / 40e6, 1e-6);
}

TEST(PlyFailure, BeginsAtTheOuterFaceOfABentPlate) {
    auto ply = GraphiteEpoxy();
    ply.strength = Strength();
    const LaminateLoad load{.force = {}, .moment = {0, 1, 0}, .temperatureChange = 0};
    const auto failure = **FirstPlyFailure(Stacked(ply, 0.001, {0, 0}), load, TSAI_WU);
    EXPECT_EQ(failure.layer, 1u);  // the tension side, where it is weaker across the fibres
    EXPECT_TRUE(failure.atTop);
}

TEST(PlyFailure, IsNoneWithoutLoadAndRefusedWithoutStrengths) {
    auto ply = GraphiteEpoxy();
    const LaminateLoad load{.force = {1, 0, 0}, .moment = {}, .temperatureChange = 0};
    EXPECT_EQ(FirstPlyFailure(Stacked(ply, 0.001, {0}), load, TSAI_WU).Why(),
              "layer 1: its material has no strengths");
    ply.strength = Strength();
    EXPECT_FALSE(FirstPlyFailure(Stacked(ply, 0.001, {0}), {}, TSAI_WU)->has_value());
    EXPECT_FALSE(FirstPlyFailure({}, load, TSAI_WU).Ok());
}

}  // namespace
