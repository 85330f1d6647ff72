#include "zelmat/mechanics/hyperelastic/VolumetricEnergy.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace zelmat::mechanics;
using enum HyperelasticModel;

TEST(VolumetricEnergy, HasABulkModulusOfTwoByD1) {
    for (const auto model : AllHyperelasticModels()) {
        const VolumetricEnergy energy(model, {0.001});
        EXPECT_NEAR(*energy.BulkModulus(), 2000, 1e-10) << Keyword(model);
        EXPECT_NEAR(energy.At(1)->bend, 2000, 1e-10) << Keyword(model);
        EXPECT_EQ(energy.At(1)->slope, 0) << Keyword(model);
        EXPECT_EQ(energy.At(1)->energy, 0) << Keyword(model);
    }
}

TEST(VolumetricEnergy, AddsEvenPowersOrIsLogarithmic) {
    EXPECT_NEAR(VolumetricEnergy(OGDEN, {0.5, 0.0, 0.01}).At(1.1)->energy, 0.02 + 1e-4, 1e-15);
    EXPECT_NEAR(VolumetricEnergy(ARRUDA_BOYCE, {0.5}).At(2)->energy, 3 - 2 * std::log(2.0), 1e-15);
    EXPECT_NEAR(VolumetricEnergy(VAN_DER_WAALS, {0.5}).At(2)->slope, 3.0, 1e-15);
}

TEST(VolumetricEnergy, HasTheDerivativesOfTheEnergy) {
    for (const auto model : {OGDEN, ARRUDA_BOYCE}) {
        const VolumetricEnergy energy(model, {0.5, 0.02});
        for (const double j : {0.8, 1.0, 1.3}) {
            const double h = 1e-5;
            EXPECT_NEAR((energy.At(j + h)->energy - energy.At(j - h)->energy) / (2 * h), energy.At(j)->slope,
                        1e-7);
            EXPECT_NEAR((energy.At(j + h)->slope - energy.At(j - h)->slope) / (2 * h), energy.At(j)->bend,
                        1e-6);
        }
    }
}

TEST(VolumetricEnergy, OfAnIncompressibleMaterialIsRefused) {
    for (const VolumetricEnergy& energy :
         {VolumetricEnergy(OGDEN, {}), VolumetricEnergy(OGDEN, {0.0, 0.1})}) {
        EXPECT_TRUE(energy.IsIncompressible());
        EXPECT_EQ(energy.BulkModulus().Why(), "an incompressible material (D1 = 0) has no bulk modulus");
        EXPECT_EQ(energy.At(1).Why(), "an incompressible material (D1 = 0) keeps its volume");
    }
    EXPECT_EQ(VolumetricEnergy(OGDEN, {0.1}).At(0).Why(),
              "a ratio of volumes has to be a finite number above 0");
}

}  // namespace
