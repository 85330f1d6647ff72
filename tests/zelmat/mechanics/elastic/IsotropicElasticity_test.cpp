#include "zelmat/mechanics/elastic/IsotropicElasticity.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace zelmat::mechanics;
using enum ElasticConstant;

constexpr ElasticConstant kAll[] = {YOUNGS_MODULUS, POISSONS_RATIO, SHEAR_MODULUS,
                                    BULK_MODULUS,   LAME_LAMBDA,    P_WAVE_MODULUS};

double Of(const IsotropicElasticity& elasticity, ElasticConstant constant) {
    const double values[] = {elasticity.youngsModulus, elasticity.poissonsRatio, elasticity.shearModulus,
                             elasticity.bulkModulus,   elasticity.lameLambda,    elasticity.pWaveModulus};
    return values[static_cast<int>(constant)];
}

TEST(IsotropicElasticity, HasTheConstantsOfSteel) {
    const auto steel = *IsotropicFrom({YOUNGS_MODULUS, 210e9}, {POISSONS_RATIO, 0.3});
    EXPECT_EQ(steel.youngsModulus, 210e9);
    EXPECT_EQ(steel.poissonsRatio, 0.3);
    EXPECT_NEAR(steel.shearModulus, 80.76923077e9, 10);
    EXPECT_NEAR(steel.bulkModulus, 175e9, 1e-3);
    EXPECT_NEAR(steel.lameLambda, 121.1538462e9, 100);
    EXPECT_NEAR(steel.pWaveModulus, 282.6923077e9, 100);
}

TEST(IsotropicElasticity, IsTheSameFromEveryPairOfConstants) {
    for (const double nu : {0.3, 0.45, 0.05, -0.4}) {
        const auto expected = *IsotropicFrom({YOUNGS_MODULUS, 70.0}, {POISSONS_RATIO, nu});
        for (const auto first : kAll) {
            for (const auto second : kAll) {
                if (first == second) continue;
                const bool twoRatios = Of({1, 0, 0, 0, 0, 0}, first) + Of({1, 0, 0, 0, 0, 0}, second) == 1 &&
                                       (first == P_WAVE_MODULUS || second == P_WAVE_MODULUS) && nu < 0;
                if (twoRatios) continue;  // E and M leave two materials: the one with nu >= 0 is answered
                const auto found =
                    IsotropicFrom({first, Of(expected, first)}, {second, Of(expected, second)});
                ASSERT_TRUE(found.Ok()) << Keyword(first) << " " << Keyword(second) << " " << nu;
                for (const auto constant : kAll) {
                    EXPECT_NEAR(Of(*found, constant), Of(expected, constant),
                                1e-12 * std::max(1.0, std::abs(Of(expected, constant))))
                        << Keyword(first) << " " << Keyword(second) << " " << nu;
                }
            }
        }
    }
}

TEST(IsotropicElasticity, IsRefusedWhereNoStableMaterialHasTheConstants) {
    const auto why = [](ElasticValue a, ElasticValue b) { return IsotropicFrom(a, b).Why(); };
    const std::string unstable =
        "no stable material has these constants: E > 0 and -1 < nu < 0.5 have to hold";
    EXPECT_EQ(why({YOUNGS_MODULUS, 210}, {POISSONS_RATIO, 0.5}), unstable);
    EXPECT_EQ(why({YOUNGS_MODULUS, 210}, {POISSONS_RATIO, -1}), unstable);
    EXPECT_EQ(why({YOUNGS_MODULUS, -1}, {POISSONS_RATIO, 0.3}), unstable);
    EXPECT_EQ(why({YOUNGS_MODULUS, 210}, {SHEAR_MODULUS, 60}), unstable);  // nu = 0.75
    EXPECT_EQ(why({YOUNGS_MODULUS, 210}, {P_WAVE_MODULUS, 100}), unstable);
    EXPECT_EQ(why({POISSONS_RATIO, 0}, {LAME_LAMBDA, 0}), unstable);
    EXPECT_EQ(why({YOUNGS_MODULUS, 1}, {YOUNGS_MODULUS, 1}), "two different constants are needed");
    EXPECT_EQ(why({YOUNGS_MODULUS, NAN}, {SHEAR_MODULUS, 1}), "a constant is not a finite number");
}

TEST(IsotropicElasticity, IsRightOrRefusedAtTheEndsOfWhatNumbersHold) {
    for (const double modulus : {1e-300, 1e200}) {
        const auto found = IsotropicFrom({SHEAR_MODULUS, modulus}, {BULK_MODULUS, modulus});
        ASSERT_TRUE(found.Ok()) << modulus;
        EXPECT_NEAR(found->youngsModulus / modulus, 2.25, 1e-15) << "9 K G / (3 K + G)";
    }
    EXPECT_EQ(IsotropicFrom({SHEAR_MODULUS, 1.0}, {BULK_MODULUS, 1e308}).Why(),
              "a constant that follows is beyond what a number can hold");
    const auto steel = IsotropicFrom({YOUNGS_MODULUS, 210e9}, {POISSONS_RATIO, 0.3}).Value();
    EXPECT_EQ(zelmat::mechanics::WaveSpeedsOf(steel, 1e-320).Why(),
              "a wave speed is beyond what a number can hold");
}

TEST(IsotropicElasticity, IsKnownByTheUsualLetters) {
    for (const auto constant : kAll) EXPECT_EQ(ElasticConstantOf(Keyword(constant)), constant);
    EXPECT_EQ(ElasticConstantOf("nu"), POISSONS_RATIO);
    EXPECT_FALSE(ElasticConstantOf("e"));
}

TEST(IsotropicElasticity, CarriesSoundAtTheSpeedsOfAluminium) {
    const auto aluminium = *IsotropicFrom({YOUNGS_MODULUS, 70e9}, {POISSONS_RATIO, 0.33});
    const auto speeds = *WaveSpeedsOf(aluminium, 2700);
    EXPECT_NEAR(speeds.bar, 5091.75, 0.01);       // sqrt(70e9/2700)
    EXPECT_NEAR(speeds.shear, 3121.95, 0.01);     // sqrt(26.3158e9/2700)
    EXPECT_NEAR(speeds.pressure, 6197.81, 0.05);  // sqrt(103.7151e9/2700)
    EXPECT_EQ(WaveSpeedsOf(aluminium, 0).Why(), "a density has to be a finite number above 0");
}

}  // namespace
