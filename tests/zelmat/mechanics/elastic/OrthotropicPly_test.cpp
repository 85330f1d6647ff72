#include "zelmat/mechanics/elastic/OrthotropicPly.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace zelmat::mechanics;

TEST(OrthotropicPly, IsStableWhereItsStrainEnergyIsPositive) {
    EXPECT_FALSE(UnstablePly({181e9, 10.3e9, 0.28, 7.17e9}));
    EXPECT_FALSE(UnstablePly({181e9, 10.3e9, 4.19, 7.17e9}));  // sqrt(181/10.3) = 4.192
    EXPECT_EQ(UnstablePly({181e9, 10.3e9, 4.2, 7.17e9})->text,
              "nu12 of a ply has to lie between -sqrt(E1/E2) and sqrt(E1/E2)");
    EXPECT_TRUE(UnstablePly({181e9, 10.3e9, -4.2, 7.17e9}));
    EXPECT_TRUE(UnstablePly({181e9, 10.3e9, NAN, 7.17e9}));
    EXPECT_EQ(UnstablePly({181e9, 0, 0.28, 7.17e9})->text, "E1, E2 and G12 of a ply have to be above 0");
    EXPECT_TRUE(UnstablePly({181e9, 10.3e9, 0.28, HUGE_VAL}));
}

TEST(OrthotropicPly, OfAnIsotropicMaterialHasItsShearModulus) {
    const auto ply = IsotropicPly(
        *IsotropicFrom({ElasticConstant::YOUNGS_MODULUS, 105e6}, {ElasticConstant::POISSONS_RATIO, 0.4}));
    EXPECT_EQ(ply.e2, 105e6);
    EXPECT_NEAR(ply.g12, 37.5e6, 1e-7);
}

}  // namespace
