#include "zelmat/mechanics/hyperelastic/HyperelasticResponse.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "tests/zelmat/mechanics/hyperelastic/ExampleEnergies.h"

namespace {

using namespace zelmat::mechanics;
using enum HyperelasticModel;
using enum LoadingMode;

/// A nominal stress worked out from the energy by numerical differentiation with many digits.
struct Reference {
    HyperelasticModel model;
    int order;
    std::vector<double> coefficients;
    LoadingMode mode;
    double stretch;
    double nominalStress;
    double accuracy;
};

const std::vector<double> kPolynomial = {0.14514, 0.032439, 0.0016867, -0.0018623, 0.000096132};

const std::vector<Reference> kReferences = {
    {NEO_HOOKE, 1, {0.5}, UNIAXIAL, 2, 1.75, 1e-9},
    {NEO_HOOKE, 1, {0.5}, EQUIBIAXIAL, 2, 1.96875, 1e-9},
    {NEO_HOOKE, 1, {0.5}, PLANAR, 2, 1.875, 1e-9},
    {MOONEY_RIVLIN, 1, {0.4, 0.1}, UNIAXIAL, 0.8, -0.800625, 1e-9},
    {MOONEY_RIVLIN, 1, {0.4, 0.1}, UNIAXIAL, 1.5, 0.985185185, 1e-9},
    {MOONEY_RIVLIN, 1, {0.4, 0.1}, UNIAXIAL, 2, 1.575, 1e-9},
    {MOONEY_RIVLIN, 1, {0.4, 0.1}, EQUIBIAXIAL, 0.8, -2.08963125, 1e-9},
    {MOONEY_RIVLIN, 1, {0.4, 0.1}, EQUIBIAXIAL, 1.5, 1.710390947, 1e-9},
    {MOONEY_RIVLIN, 1, {0.4, 0.1}, EQUIBIAXIAL, 2, 3.15, 1e-9},
    {MOONEY_RIVLIN, 1, {0.5, -0.1}, UNIAXIAL, 0.8, -0.571875, 1e-9},
    {MOONEY_RIVLIN, 1, {0.5, -0.1}, UNIAXIAL, 1.5, 0.914814815, 1e-9},
    {MOONEY_RIVLIN, 1, {0.5, -0.1}, UNIAXIAL, 2, 1.575, 1e-9},
    {YEOH, 3, {0.5, -0.01, 0.001}, UNIAXIAL, 2, 1.652, 1e-9},
    {YEOH, 3, {0.5, -0.01, 0.001}, EQUIBIAXIAL, 2, 1.872819580, 1e-9},
    {YEOH, 3, {0.5, -0.01, 0.001}, PLANAR, 2, 1.763203125, 1e-9},
    {POLYNOMIAL, 2, kPolynomial, UNIAXIAL, 0.8, -0.2829966189, 1e-9},
    {POLYNOMIAL, 2, kPolynomial, UNIAXIAL, 1.5, 0.3530598306, 1e-9},
    {POLYNOMIAL, 2, kPolynomial, UNIAXIAL, 2, 0.574127015, 1e-9},
    {POLYNOMIAL, 2, kPolynomial, EQUIBIAXIAL, 0.8, -0.7500376690, 1e-9},
    {POLYNOMIAL, 2, kPolynomial, EQUIBIAXIAL, 1.5, 0.5815921173, 1e-9},
    {POLYNOMIAL, 2, kPolynomial, EQUIBIAXIAL, 2, 0.9430449072, 1e-9},
    {OGDEN, 1, {1, 3}, UNIAXIAL, 2, 2.548815536, 1e-9},
    {OGDEN, 1, {1, 3}, EQUIBIAXIAL, 2, 2.661458333, 1e-9},
    {OGDEN, 1, {1, 3}, PLANAR, 2, 2.625, 1e-9},
    {ARRUDA_BOYCE, 1, {1, 3}, UNIAXIAL, 2, 1.986194989, 1e-9},
    {ARRUDA_BOYCE, 1, {1, 3}, EQUIBIAXIAL, 2, 2.461296959, 1e-9},
    {ARRUDA_BOYCE, 1, {1, 3}, PLANAR, 2, 2.143608152, 1e-9},
    {VAN_DER_WAALS, 1, {1, 5, 0.5, 0.1}, UNIAXIAL, 2, 1.545333225, 1e-9},
    {VAN_DER_WAALS, 1, {1, 5, 0.5, 0.1}, EQUIBIAXIAL, 2, 3.112316559114, 1e-9},
    {VAN_DER_WAALS, 1, {1, 5, 0.5, 0.1}, PLANAR, 2, 1.762177637, 1e-9},
};

HyperelasticResponse At(const StrainEnergy& energy, LoadingMode mode, double x) {
    const auto response = Respond(energy, mode, x);
    EXPECT_TRUE(response.Ok()) << Keyword(mode) << " " << x;
    return response.Ok() ? *response : HyperelasticResponse{};
}

constexpr LoadingMode kModes[] = {UNIAXIAL, EQUIBIAXIAL, PLANAR, SIMPLE_SHEAR};
constexpr double kStretches[] = {0.4, 0.8, 0.999, 1.001, 1.3, 2.0, 2.7};

TEST(HyperelasticResponse, HasTheNominalStressesOfTheReference) {
    for (const auto& reference : kReferences) {
        const auto energy = MakeEnergy(reference.model, reference.order, reference.coefficients);
        EXPECT_NEAR(At(*energy, reference.mode, reference.stretch).nominalStress, reference.nominalStress,
                    reference.accuracy)
            << Keyword(reference.model) << " " << Keyword(reference.mode) << " " << reference.stretch;
    }
}

TEST(HyperelasticResponse, HasATrueStressThatIsTheStretchTimesTheNominalOne) {
    const auto energy = MakeEnergy(MOONEY_RIVLIN, 1, {0.4, 0.1});
    EXPECT_NEAR(At(*energy, UNIAXIAL, 2).trueStress, 3.15, 1e-14);
    EXPECT_NEAR(At(*energy, EQUIBIAXIAL, 2).trueStress, 6.3, 1e-14);
    EXPECT_NEAR(At(*energy, UNIAXIAL, 0.8).trueStress, -0.6405, 1e-14);
}

TEST(HyperelasticResponse, ShearsByTwiceTheSumOfTheDerivativesByTheInvariants) {
    const auto mooney = MakeEnergy(MOONEY_RIVLIN, 1, {0.4, 0.1});
    EXPECT_NEAR(At(*mooney, SIMPLE_SHEAR, 0.7).nominalStress, 0.7, 1e-14);
    EXPECT_NEAR(At(*mooney, SIMPLE_SHEAR, 0.7).trueStress, 0.7, 1e-14);
    EXPECT_NEAR(At(*mooney, SIMPLE_SHEAR, 0.7).tangent, 1.0, 1e-14);
    EXPECT_NEAR(At(*mooney, SIMPLE_SHEAR, -0.7).nominalStress, -0.7, 1e-14);
    // Ogden with alpha 2 and mu 1 is the neo-Hookean material C10 = 1/2, with alpha -2 the I2 material.
    EXPECT_NEAR(At(*MakeEnergy(OGDEN, 1, {1, 2}), SIMPLE_SHEAR, 1.5).nominalStress, 1.5, 1e-14);
    EXPECT_NEAR(At(*MakeEnergy(OGDEN, 1, {1, -2}), SIMPLE_SHEAR, 1.5).nominalStress, 1.5, 1e-14);
}

TEST(HyperelasticResponse, IsWithoutStressAndEnergyAtRest) {
    for (const auto& example : RandomEnergies()) {
        for (const auto mode : kModes) {
            const auto rest = At(*example.Make(), mode, AtRest(mode));
            EXPECT_EQ(rest.energy, 0.0) << example.name;
            EXPECT_EQ(rest.nominalStress, 0.0) << example.name;
            EXPECT_EQ(rest.trueStress, 0.0) << example.name;
        }
    }
}

TEST(HyperelasticResponse, StartsWithTheModuliOfSmallStrain) {
    for (const auto& example : RandomEnergies()) {
        const auto energy = example.Make();
        const double mu = energy->ShearModulus();
        EXPECT_NEAR(At(*energy, UNIAXIAL, 1).tangent, 3 * mu, 1e-12 * mu) << example.name;
        EXPECT_NEAR(At(*energy, EQUIBIAXIAL, 1).tangent, 6 * mu, 1e-12 * mu) << example.name;
        EXPECT_NEAR(At(*energy, PLANAR, 1).tangent, 4 * mu, 1e-12 * mu) << example.name;
        EXPECT_NEAR(At(*energy, SIMPLE_SHEAR, 0).tangent, mu, 1e-12 * mu) << example.name;
    }
}

TEST(HyperelasticResponse, HasTheDerivativesOfTheEnergy) {
    for (const auto& example : RandomEnergies()) {
        const auto energy = example.Make();
        for (const auto mode : kModes) {
            for (const double x : kStretches) {
                if (!Respond(*energy, mode, x + 0.01).Ok() || !Respond(*energy, mode, x - 0.01).Ok())
                    continue;
                const auto at = At(*energy, mode, x);
                // Van der Waals' third derivative jumps at rest: no difference across it.
                const double step = std::min(1e-3 * x, 0.1 * std::abs(x - AtRest(mode)));
                const auto difference = [&](auto member) {
                    const auto value = [&](double k) { return At(*energy, mode, x + k * step).*member; };
                    return (45 * (value(1) - value(-1)) - 9 * (value(2) - value(-2)) +
                            (value(3) - value(-3))) /
                           (60 * step);
                };
                const double works = mode == EQUIBIAXIAL ? 2 : 1;
                const double size =
                    std::abs(at.nominalStress) + std::abs(at.tangent) + energy->ShearModulus();
                EXPECT_NEAR(difference(&HyperelasticResponse::energy), works * at.nominalStress, 1e-7 * size)
                    << example.name << " " << Keyword(mode) << " " << x;
                EXPECT_NEAR(difference(&HyperelasticResponse::nominalStress), at.tangent, 1e-7 * size)
                    << example.name << " " << Keyword(mode) << " " << x;
            }
        }
    }
}

TEST(HyperelasticResponse, IsContinuousThroughRest) {
    for (const auto& example : RandomEnergies()) {
        const auto energy = example.Make();
        const double mu = energy->ShearModulus();
        for (const double step : {1e-4, 1e-8, 1e-12}) {
            const double above = At(*energy, UNIAXIAL, 1 + step).nominalStress;
            const double below = At(*energy, UNIAXIAL, 1 - step).nominalStress;
            EXPECT_NEAR(above / step, 3 * mu, 0.1 * mu) << example.name << " " << step;
            EXPECT_NEAR(below / step, -3 * mu, 0.1 * mu) << example.name << " " << step;
        }
    }
}

TEST(HyperelasticResponse, IsTheSameInEveryUnitOfStress) {
    for (const auto& [name, model, order, coefficients] : ExampleEnergies()) {
        const auto energy = MakeEnergy(model, order, coefficients);
        for (const double factor : {1e6, 145.03773773020923}) {
            auto scaled = coefficients;
            const auto names = CoefficientNames(model, order);
            for (std::size_t i = 0; i < names.size(); ++i) {
                if (names[i].starts_with("C") || names[i].starts_with("mu")) scaled[i] *= factor;
            }
            const auto other = MakeEnergy(model, order, scaled);
            for (const auto mode : kModes) {
                for (const double x : kStretches) {
                    if (!Respond(*energy, mode, x).Ok()) continue;  // locked
                    const auto here = At(*energy, mode, x), there = At(*other, mode, x);
                    EXPECT_NEAR(there.energy / factor, here.energy, 1e-12 * std::abs(here.energy)) << name;
                    EXPECT_NEAR(there.nominalStress / factor, here.nominalStress,
                                1e-12 * std::abs(here.nominalStress))
                        << name;
                    EXPECT_NEAR(there.tangent / factor, here.tangent, 1e-12 * std::abs(here.tangent) + 1e-13)
                        << name;
                }
            }
        }
    }
}

TEST(HyperelasticResponse, KnowsItsDerivativesByTheCoefficients) {
    for (const auto& [name, model, order, coefficients] : RandomEnergies()) {
        const auto energy = MakeEnergy(model, order, coefficients);
        for (const auto mode : kModes) {
            for (const double x : {0.7, 1.4, 2.1}) {
                const auto slopes = NominalStressByCoefficient(*energy, mode, x);
                ASSERT_EQ(slopes.size(), coefficients.size());
                for (std::size_t i = 0; i < coefficients.size(); ++i) {
                    if (model == VAN_DER_WAALS && i == 3 &&
                        (coefficients[i] < 1e-4 || coefficients[i] > 1 - 1e-4)) {
                        continue;
                    }
                    auto more = coefficients, less = coefficients;
                    more[i] += 1e-5;
                    less[i] -= 1e-5;
                    const double difference = (At(*MakeEnergy(model, order, more), mode, x).nominalStress -
                                               At(*MakeEnergy(model, order, less), mode, x).nominalStress) /
                                              2e-5;
                    EXPECT_NEAR(slopes[i], difference, 1e-7 * (1 + std::abs(difference))) << name << " " << i;
                }
            }
        }
    }
}

TEST(HyperelasticResponse, IsRefusedForStretchesThatCannotBe) {
    const auto energy = MakeEnergy(NEO_HOOKE, 1, {0.5});
    for (const double x : {0.0, -1.0, HUGE_VAL, std::numeric_limits<double>::quiet_NaN()}) {
        const auto response = Respond(*energy, UNIAXIAL, x);
        ASSERT_FALSE(response.Ok()) << x;
        EXPECT_EQ(response.Why(), "a stretch has to be a finite number above 0");
        EXPECT_TRUE(NominalStressByCoefficient(*energy, UNIAXIAL, x).empty());
    }
    const auto shear = Respond(*energy, SIMPLE_SHEAR, HUGE_VAL);
    ASSERT_FALSE(shear.Ok());
    EXPECT_EQ(shear.Why(), "an amount of shear has to be a finite number");
}

TEST(HyperelasticResponse, IsRefusedWhereItGrowsOutOfADouble) {
    const auto response = Respond(*MakeEnergy(OGDEN, 1, {1, 30}), UNIAXIAL, 1e20);
    ASSERT_FALSE(response.Ok());
    EXPECT_EQ(response.Why(), "the response is too great for a number");
}

TEST(HyperelasticResponse, EndsAtTheLockingStretchOfVanDerWaals) {
    // beta = 0: I1 = x^2 + 2/x = 25, the greatest and the smallest of its three roots that are positive.
    const auto energy = MakeEnergy(VAN_DER_WAALS, 1, {1, 5, 0, 0});
    const auto locking = LockingStretchOf(*energy, UNIAXIAL);
    ASSERT_TRUE(locking);
    EXPECT_TRUE(locking->ends);
    EXPECT_NEAR(locking->upper * locking->upper + 2 / locking->upper, 25, 1e-12);
    EXPECT_NEAR(locking->upper, 4.9595, 1e-4);
    EXPECT_NEAR(locking->lower, 0.08002, 1e-5);

    EXPECT_TRUE(Respond(*energy, UNIAXIAL, 4.95).Ok());
    const auto beyond = Respond(*energy, UNIAXIAL, 4.97);
    ASSERT_FALSE(beyond.Ok());
    EXPECT_EQ(beyond.Why(), "at and beyond the locking stretch the potential has no energy");
    EXPECT_FALSE(Respond(*energy, UNIAXIAL, 0.08).Ok());
    EXPECT_TRUE(NominalStressByCoefficient(*energy, UNIAXIAL, 4.97).empty());
}

TEST(HyperelasticResponse, GoesOnBeyondTheLockingStretchOfArrudaBoyceAndSaysSo) {
    const auto energy = MakeEnergy(ARRUDA_BOYCE, 1, {1, 3});
    const auto locking = LockingStretchOf(*energy, SIMPLE_SHEAR);
    ASSERT_TRUE(locking);
    EXPECT_FALSE(locking->ends);
    EXPECT_NEAR(locking->upper, std::sqrt(24.0), 1e-12);  // I1 - 3 = g^2 = 3 * 9 - 3
    EXPECT_NEAR(locking->lower, -std::sqrt(24.0), 1e-12);
    EXPECT_FALSE(At(*energy, SIMPLE_SHEAR, 4.89).beyondLocking);
    EXPECT_TRUE(At(*energy, SIMPLE_SHEAR, 4.91).beyondLocking);
    EXPECT_FALSE(LockingStretchOf(*MakeEnergy(NEO_HOOKE, 1, {0.5}), UNIAXIAL));
}

}  // namespace
