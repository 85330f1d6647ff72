#include "zelmat/mechanics/hyperelastic/StrainEnergy.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/zelmat/mechanics/hyperelastic/ExampleEnergies.h"

namespace {

using namespace zelmat::mechanics;
using enum HyperelasticModel;

TEST(StrainEnergy, HasTheShearModulusOfItsFormula) {
    EXPECT_EQ(MakeEnergy(NEO_HOOKE, 1, {0.5})->ShearModulus(), 1.0);
    EXPECT_EQ(MakeEnergy(MOONEY_RIVLIN, 1, {0.5, 0.25})->ShearModulus(), 1.5);
    EXPECT_EQ(MakeEnergy(YEOH, 3, {0.5, 7, 8})->ShearModulus(), 1.0);
    EXPECT_EQ(MakeEnergy(REDUCED_POLYNOMIAL, 2, {0.5, 7})->ShearModulus(), 1.0);
    EXPECT_EQ(MakeEnergy(POLYNOMIAL, 2, {0.5, 0.25, 7, 8, 9})->ShearModulus(), 1.5);
    EXPECT_EQ(MakeEnergy(OGDEN, 2, {0.5, 3, 0.25, -2})->ShearModulus(), 0.75);
    EXPECT_EQ(MakeEnergy(VAN_DER_WAALS, 1, {0.4, 10, 0.3, 0.1})->ShearModulus(), 0.4);
    const double m = 3 * 3;  // lambda_m^2
    EXPECT_NEAR(
        MakeEnergy(ARRUDA_BOYCE, 1, {1, 3})->ShearModulus(),
        1 + 3 / (5 * m) + 99 / (175 * m * m) + 513 / (875 * m * m * m) + 42039 / (67375 * m * m * m * m),
        1e-15);
}

TEST(StrainEnergy, KeepsItsDigitsAtSmallStrains) {
    // The energy of small uniaxial strain is 3/2 mu e^2.
    for (const auto& [name, model, order, coefficients] : ExampleEnergies()) {
        const auto energy = MakeEnergy(model, order, coefficients);
        const double e = 1e-9, mu = energy->ShearModulus();
        EXPECT_NEAR(energy->At(StretchesOf(e, -0.5 * e)).energy, 1.5 * mu * e * e, 1e-7 * mu * e * e) << name;
    }
}

TEST(StrainEnergy, OfTheSameMaterialIsTheSameInEveryForm) {
    const auto deformation = StretchesOf(0.7, -0.1);
    const auto polynomial = MakeEnergy(POLYNOMIAL, 1, {0.4, 0.1})->At(deformation);
    const auto ogden = MakeEnergy(OGDEN, 2, {0.8, 2, 0.2, -2})->At(deformation);
    EXPECT_NEAR(polynomial.energy, ogden.energy, 1e-14);
    EXPECT_NEAR(polynomial.force[0] - polynomial.force[2], ogden.force[0] - ogden.force[2], 1e-14);
    EXPECT_NEAR(polynomial.stiffness[1][1], ogden.stiffness[1][1], 1e-14);
}

TEST(StrainEnergy, RefusesCoefficientsThatAreNone) {
    const auto why = [](HyperelasticModel model, int order, const std::vector<double>& coefficients) {
        const auto energy = MakeStrainEnergy(model, order, coefficients);
        return energy.Ok() ? std::string("taken") : energy.Why();
    };
    EXPECT_EQ(why(NEO_HOOKE, 1, {}), "NEO_HOOKE has 1 coefficients without the compressibilities, not 0");
    EXPECT_EQ(why(POLYNOMIAL, 2, {1, 2, 3, 4}),
              "POLYNOMIAL has 5 coefficients without the compressibilities, not 4");
    EXPECT_EQ(why(OGDEN, 0, {}), "the order of OGDEN starts at 1");
    EXPECT_EQ(why(NEO_HOOKE, 0, {1}), "taken");
    EXPECT_EQ(why(NEO_HOOKE, 1, {NAN}), "a coefficient of NEO_HOOKE is not a finite number");
    EXPECT_EQ(why(OGDEN, 2, {1, 2, 1, 0}), "alpha_2 of OGDEN may not be 0");
    EXPECT_EQ(why(ARRUDA_BOYCE, 1, {1, 0}), "lambda_m of ARRUDA_BOYCE has to be above 0");
    EXPECT_EQ(why(VAN_DER_WAALS, 1, {1, 1.7, 0, 0}), "lambda_m of VAN_DER_WAALS has to be above sqrt(3)");
    EXPECT_EQ(why(VAN_DER_WAALS, 1, {1, 5, 0, 1.1}), "beta of VAN_DER_WAALS has to lie between 0 and 1");
    EXPECT_EQ(why(VAN_DER_WAALS, 1, {1, 5, 0, -0.1}), "beta of VAN_DER_WAALS has to lie between 0 and 1");
}

}  // namespace
