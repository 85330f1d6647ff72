#include "zelmat/mechanics/hyperelastic/Stability.h"

#include <gtest/gtest.h>

#include "tests/zelmat/mechanics/hyperelastic/ExampleEnergies.h"

namespace {

using namespace zelmat::mechanics;
using enum HyperelasticModel;
using enum LoadingMode;
using enum StabilityCriterion;

constexpr StabilityRange kRange = {0.15, 6};

StabilityLimits Limits(const StrainEnergy& energy, StabilityCriterion criterion, LoadingMode mode) {
    return FindStabilityLimits(energy, criterion, mode, kRange);
}

TEST(Stability, EndsForMooneyRivlinWithANegativeCoefficientWhereDruckersCriterionFails) {
    const auto energy = MakeEnergy(MOONEY_RIVLIN, 1, {0.5, -0.1});
    const auto uniaxial = Limits(*energy, DRUCKER, UNIAXIAL);
    EXPECT_NEAR(uniaxial.tension.value(), 2.2361, 5e-5);
    EXPECT_NEAR(uniaxial.compression.value(), 0.372, 5e-4);
    const auto equibiaxial = Limits(*energy, DRUCKER, EQUIBIAXIAL);
    EXPECT_NEAR(equibiaxial.tension.value(), 1.6396, 5e-5);
    EXPECT_NEAR(equibiaxial.compression.value(), 0.6687, 5e-5);
    const auto planar = Limits(*energy, DRUCKER, PLANAR);
    EXPECT_NEAR(planar.tension.value(), 2.1218, 5e-5);
    EXPECT_NEAR(planar.compression.value(), 0.4713, 5e-5);
}

TEST(Stability, EndsForTheFullPolynomialOfTreloarsRubber) {
    const auto energy = MakeEnergy(POLYNOMIAL, 2, {0.14514, 0.032439, 0.0016867, -0.0018623, 0.000096132});
    EXPECT_NEAR(Limits(*energy, DRUCKER, UNIAXIAL).tension.value(), 5.0188, 5e-5);
    EXPECT_NEAR(Limits(*energy, DRUCKER, EQUIBIAXIAL).tension.value(), 3.2685, 5e-5);
    EXPECT_NEAR(Limits(*energy, DRUCKER, EQUIBIAXIAL).compression.value(), 0.4464, 5e-5);
    EXPECT_NEAR(Limits(*energy, DRUCKER, PLANAR).tension.value(), 4.7232, 5e-5);
    EXPECT_NEAR(Limits(*energy, DRUCKER, PLANAR).compression.value(), 0.2117, 5e-5);
}

TEST(Stability, EndsForTheReducedPolynomialOfTreloarsRubberInEquibiaxialCompressionOnly) {
    const auto energy = MakeEnergy(REDUCED_POLYNOMIAL, 4, {0.1978, -0.003114, 9.8668e-5, -5.8301e-7});
    for (const auto mode : {UNIAXIAL, EQUIBIAXIAL, PLANAR}) {
        const auto limits = Limits(*energy, DRUCKER, mode);
        EXPECT_TRUE(limits.stableAtRest);
        EXPECT_FALSE(limits.tension) << Keyword(mode);
        EXPECT_EQ(limits.compression.has_value(), mode == EQUIBIAXIAL) << Keyword(mode);
    }
    EXPECT_NEAR(Limits(*energy, DRUCKER, EQUIBIAXIAL).compression.value(), 0.3297, 5e-5);
}

TEST(Stability, HasTwoCriteriaThatDiffer) {
    const auto energy = MakeEnergy(MOONEY_RIVLIN, 1, {0.5, 0.5});
    for (const auto mode : {UNIAXIAL, EQUIBIAXIAL, PLANAR, SIMPLE_SHEAR}) {
        const auto drucker = Limits(*energy, DRUCKER, mode);
        EXPECT_FALSE(drucker.tension || drucker.compression) << Keyword(mode);
    }
    EXPECT_NEAR(Limits(*energy, DEAD_LOAD, EQUIBIAXIAL).tension.value(), 1.39179, 5e-6);
    EXPECT_NEAR(Limits(*energy, DEAD_LOAD, PLANAR).tension.value(), 2.22512, 5e-6);
    EXPECT_FALSE(Limits(*energy, DEAD_LOAD, UNIAXIAL).tension);
}

TEST(Stability, TakesSimpleShearAsPlanarTensionOfItsPrincipalStretchForDruckersCriterion) {
    const auto energy = MakeEnergy(MOONEY_RIVLIN, 1, {0.5, -0.1});
    const double stretch = Limits(*energy, DRUCKER, PLANAR).tension.value();
    const auto shear =
        FindStabilityLimits(*energy, DRUCKER, SIMPLE_SHEAR, DefaultStabilityRange(SIMPLE_SHEAR));
    EXPECT_NEAR(shear.tension.value(), stretch - 1 / stretch, 1e-10);
    EXPECT_NEAR(shear.compression.value(), -shear.tension.value(), 1e-10);
}

TEST(Stability, IsBracketedByTheSignOfTheSmallestEigenvalue) {
    int found = 0;
    for (const auto& example : RandomEnergies()) {
        const auto energy = example.Make();
        for (const auto criterion : {DRUCKER, DEAD_LOAD}) {
            for (const auto mode : {UNIAXIAL, EQUIBIAXIAL, PLANAR, SIMPLE_SHEAR}) {
                const auto limits =
                    FindStabilityLimits(*energy, criterion, mode, DefaultStabilityRange(mode));
                EXPECT_TRUE(limits.stableAtRest);
                for (const auto& limit : {limits.tension, limits.compression}) {
                    if (!limit) continue;
                    ++found;
                    const double strain = PathStrain(mode, *limit);
                    const auto at = [&](double s) {
                        return SmallestEigenvalue(*energy, criterion, mode, LoadAt(mode, s)).value_or(-1);
                    };
                    EXPECT_GT(at(strain * (1 - 1e-9)), 0) << example.name << " " << *limit;
                    EXPECT_LE(at(strain * (1 + 1e-9)), 0) << example.name << " " << *limit;
                    for (int i = 0; i < 100; ++i) EXPECT_GT(at(strain * i / 100), 0) << example.name;
                }
            }
        }
    }
    EXPECT_GT(found, 50);
}

TEST(Stability, FindsALossBetweenTwoStepsOfTheSearch) {
    // The smallest eigenvalue of this family dips at a stretch of 2.5364 and touches 0 there for C30 =
    // 0.00244926468.
    const auto tension = [](double c30) {
        const auto energy = MakeEnergy(REDUCED_POLYNOMIAL, 3, {0.5, -0.05, c30});
        return FindStabilityLimits(*energy, DRUCKER, UNIAXIAL, {0.1, 10}).tension;
    };
    EXPECT_NEAR(tension(0.00244926).value(), 2.5364, 2e-3);
    EXPECT_FALSE(tension(0.00244927));
}

TEST(Stability, IsLookedForUpToTheLockingStretchOnly) {
    const auto energy = MakeEnergy(VAN_DER_WAALS, 1, {1, 5, 0, 0});
    const auto limits = Limits(*energy, DRUCKER, UNIAXIAL);
    EXPECT_FALSE(limits.tension);
    EXPECT_NEAR(limits.searched.upper, 4.9595, 1e-4);
    EXPECT_EQ(limits.searched.lower, 0.15);
    EXPECT_FALSE(SmallestEigenvalue(*energy, DRUCKER, UNIAXIAL, 5));
    EXPECT_FALSE(SmallestEigenvalue(*energy, DRUCKER, UNIAXIAL, -1));
}

TEST(Stability, IsNotLookedForWhereRestItselfIsUnstable) {
    const auto limits = Limits(*MakeEnergy(NEO_HOOKE, 1, {-0.5}), DRUCKER, UNIAXIAL);
    EXPECT_FALSE(limits.stableAtRest);
    EXPECT_FALSE(limits.tension);
    EXPECT_FALSE(limits.compression);
}

TEST(Stability, TakesTheDefaultForABoundThatCannotBeReached) {
    const auto energy = MakeEnergy(MOONEY_RIVLIN, 1, {0.5, -0.1});
    const auto limits = FindStabilityLimits(*energy, DRUCKER, UNIAXIAL, {-1, 0.5});
    EXPECT_EQ(limits.searched.lower, 0.1);
    EXPECT_EQ(limits.searched.upper, 1.0);
    EXPECT_NEAR(limits.compression.value(), 0.372, 5e-4);
    EXPECT_FALSE(limits.tension);
    EXPECT_EQ(Keyword(DRUCKER), "drucker");
    EXPECT_EQ(Keyword(DEAD_LOAD), "dead-load");
}

}  // namespace
