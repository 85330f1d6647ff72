#include "zelmat/mechanics/tables/ThermalExpansion.h"

#include <gmock/gmock.h>

namespace {

using namespace zelmat::mechanics;
using enum OutsidePolicy;
using enum ReferenceChange;
using testing::Contains;
using testing::ElementsAre;

/// 12e-6 at 100 degC and 14e-6 at 300 degC, mean from 20 degC.
ThermalExpansion Steel() {
    return {*TemperatureTable::Over({{100, {12e-6}}, {300, {14e-6}}}), 20};
}

TEST(ThermalExpansion, StrainsByTheMeanCoefficientFromItsReference) {
    EXPECT_NEAR(Steel().StrainAt(300, REFUSE)->values[0], 3.92e-3, 1e-17);
    EXPECT_NEAR(Steel().StrainAt(200, REFUSE)->values[0], 2.34e-3, 1e-17);
    EXPECT_EQ(Steel().StrainAt(20, REFUSE)->values[0], 0.0);  // whatever the table says there
    EXPECT_EQ(Steel().StrainAt(50, REFUSE).Why(), "the temperature lies outside the table");
    EXPECT_NEAR(Steel().StrainAt(50, CONSTANT)->values[0], 3.6e-4, 1e-17);
}

TEST(ThermalExpansion, IsReferredToAnotherTemperatureExactlyOrLinearised) {
    const auto exact = Steel().MeanFrom(100, 300, EXACT, REFUSE);
    EXPECT_NEAR(exact->value, 1.47858056e-5, 5e-14);
    EXPECT_THAT(exact->notes, Contains("exact"));
    const auto linearised = Steel().MeanFrom(100, 300, LINEARISED, REFUSE);
    EXPECT_NEAR(linearised->value, 1.48e-5, 1e-18);
    EXPECT_THAT(linearised->notes, Contains("linearised"));
}

TEST(ThermalExpansion, AtTheNewReferenceItselfHasItsLimit) {
    // alpha_m + alpha_m' (T - Tref) = 12e-6 + 1e-8 * 80
    EXPECT_NEAR(Steel().MeanFrom(100, 100, LINEARISED, REFUSE)->value, 12.8e-6, 1e-18);
    EXPECT_NEAR(Steel().MeanFrom(100, 100, EXACT, REFUSE)->value, 12.8e-6 / 1.00096, 1e-18);
    EXPECT_NEAR(Steel().MeanFrom(100, 100 + 1e-4, EXACT, REFUSE)->value, 12.8e-6 / 1.00096, 1e-11);
}

TEST(ThermalExpansion, IsTheSameStrainAfterEveryChangeOfReference) {
    const auto there = *Steel().Referred(100, EXACT, REFUSE);
    EXPECT_EQ(there.ReferenceTemperature(), 100);
    // The length at 300 over that at 100 is the same: (1 + 3.92e-3)/(1 + 0.96e-3) - 1.
    EXPECT_NEAR(there.StrainAt(300, REFUSE)->values[0], 1.00392 / 1.00096 - 1, 1e-15);
    EXPECT_NEAR(Steel().Referred(100, LINEARISED, REFUSE)->StrainAt(300, REFUSE)->values[0], 2.96e-3, 1e-17);
}

TEST(ThermalExpansion, HasAnInstantaneousCoefficientThatIsTheSlopeOfTheStrain) {
    const auto middle = Steel().InstantaneousAt(200, REFUSE);
    EXPECT_NEAR(middle->value, 13e-6 + 1e-8 * 180, 1e-18);
    EXPECT_FALSE(middle->below);

    const ThermalExpansion bent(*TemperatureTable::Over({{0, {10e-6}}, {100, {11e-6}}, {200, {14e-6}}}), 0);
    const auto corner = bent.InstantaneousAt(100, REFUSE);
    EXPECT_NEAR(corner->value, 14e-6, 1e-18);
    EXPECT_NEAR(corner->below.value(), 12e-6, 1e-18);
    EXPECT_THAT(corner->notes,
                ElementsAre("on a row, where the slope of the table jumps: the value above it"));
}

TEST(ThermalExpansion, ComesFromAnInstantaneousTableByItsIntegral) {
    const auto instantaneous = *TemperatureTable::Over({{20, {10e-6}}, {120, {12e-6}}, {220, {16e-6}}});
    const auto mean = *ThermalExpansion::FromInstantaneous(instantaneous, 20, REFUSE);
    EXPECT_NEAR(mean.Mean().Rows()[0].values[0], 10e-6, 1e-18);
    EXPECT_NEAR(mean.Mean().Rows()[1].values[0], 11e-6, 1e-18);
    EXPECT_NEAR(mean.Mean().Rows()[2].values[0], 12.5e-6, 1e-18);

    const auto from120 = *ThermalExpansion::FromInstantaneous(instantaneous, 120, REFUSE);
    EXPECT_NEAR(from120.Mean().Rows()[0].values[0], 11e-6, 1e-18);  // both integral and distance are negative
    EXPECT_FALSE(ThermalExpansion::FromInstantaneous(instantaneous, 0, REFUSE).Ok());
}

// 10e-6 at 0, 20e-6 at 100 and at 200, from 0: the strain is 1.5e-3 at 100, 2.5e-3 at 150.
TEST(ThermalExpansion, OfAnInstantaneousTableKeepsItsCoefficientsAndIsExactBetweenTheRows) {
    const auto table = *TemperatureTable::Over({{0, {10e-6}}, {100, {20e-6}}, {200, {20e-6}}});
    const auto expansion = *ThermalExpansion::FromInstantaneous(table, 0, REFUSE);

    EXPECT_EQ(expansion.InstantaneousAt(100, REFUSE)->value, 20e-6);
    EXPECT_FALSE(expansion.InstantaneousAt(100, REFUSE)->below);
    EXPECT_NEAR(expansion.InstantaneousAt(50, REFUSE)->value, 15e-6, 1e-20);
    EXPECT_NEAR(expansion.StrainAt(150, REFUSE)->values[0], 2.5e-3, 1e-17);
    EXPECT_NEAR(expansion.MeanAt(150, REFUSE)->values[0], 2.5e-3 / 150, 1e-19);
    EXPECT_EQ(expansion.MeanAt(0, REFUSE)->values[0], 10e-6);
    EXPECT_NEAR(expansion.MeanFrom(100, 150, LINEARISED, REFUSE)->value, 20e-6, 1e-18);
    EXPECT_NEAR(expansion.StrainAt(250, CONSTANT)->values[0], 4.5e-3, 1e-17);
    EXPECT_EQ(expansion.MeanAt(250, REFUSE).Why(), "the temperature lies outside the table");
}

TEST(ThermalExpansion, WithoutTemperaturesIsItsOneCoefficient) {
    const ThermalExpansion constant(TemperatureTable::Independent({22e-5}), 293.15);
    EXPECT_NEAR(constant.StrainAt(303.15, REFUSE)->values[0], 22e-4, 1e-17);
    EXPECT_EQ(constant.InstantaneousAt(400, REFUSE)->value, 22e-5);
    EXPECT_NEAR(constant.Referred(313.15, LINEARISED, REFUSE)->Mean().Rows()[0].values[0], 22e-5, 1e-18);
}

}  // namespace
