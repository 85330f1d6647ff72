#include "tests/zelmat/mechanics/hyperelastic/ExampleEnergies.h"

#include <gtest/gtest.h>

#include <random>

using namespace zelmat::mechanics;
using enum HyperelasticModel;

std::shared_ptr<const StrainEnergy> MakeEnergy(HyperelasticModel model, int order,
                                               const std::vector<double>& coefficients) {
    const auto energy = MakeStrainEnergy(model, order, coefficients);
    EXPECT_TRUE(energy.Ok());
    return energy.Ok() ? *energy : nullptr;
}

std::shared_ptr<const StrainEnergy> ExampleEnergy::Make() const {
    return MakeEnergy(model, order, coefficients);
}

const std::vector<ExampleEnergy>& ExampleEnergies() {
    static const std::vector<ExampleEnergy> energies = {
        {"NeoHooke", NEO_HOOKE, 1, {0.5}},
        {"MooneyRivlin", MOONEY_RIVLIN, 1, {0.4, 0.1}},
        {"MooneyRivlinNegative", MOONEY_RIVLIN, 1, {0.5, -0.1}},
        {"Yeoh", YEOH, 3, {0.5, -0.01, 0.001}},
        {"ReducedPolynomial", REDUCED_POLYNOMIAL, 4, {0.1978, -0.003114, 9.8668e-5, -5.8301e-7}},
        {"Polynomial2", POLYNOMIAL, 2, {0.14514, 0.032439, 0.0016867, -0.0018623, 0.000096132}},
        {"Polynomial3", POLYNOMIAL, 3, {0.2, 0.03, 0.002, -0.001, 0.0001, 3e-5, -2e-5, 1e-5, 2e-6}},
        {"Ogden1", OGDEN, 1, {1.0, 3.0}},
        {"Ogden3", OGDEN, 3, {0.4095, 1.3, 0.003, 5.0, 0.01, -2.0}},
        {"ArrudaBoyce", ARRUDA_BOYCE, 1, {1.0, 3.0}},
        {"VanDerWaals", VAN_DER_WAALS, 1, {1.0, 5.0, 0.5, 0.1}},
    };
    return energies;
}

std::vector<ExampleEnergy> RandomEnergies() {
    std::mt19937 random(20240229);
    const auto between = [&random](double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random);
    };
    std::vector<ExampleEnergy> energies;
    for (int i = 0; i < 8; ++i) {
        const int order = 1 + i % 4;
        energies.push_back({"NeoHooke", NEO_HOOKE, 1, {between(0.1, 2)}});
        energies.push_back({"MooneyRivlin", MOONEY_RIVLIN, 1, {between(0.3, 2), between(-0.2, 1)}});
        energies.push_back({"Yeoh", YEOH, 3, {between(0.1, 1), between(-0.02, 0.02), between(0, 0.001)}});
        energies.push_back({"ArrudaBoyce", ARRUDA_BOYCE, 1, {between(0.1, 1), between(2, 8)}});
        energies.push_back({"VanDerWaals",
                            VAN_DER_WAALS,
                            1,
                            {between(0.1, 1), between(5, 12), between(0, 0.5), between(0, 1)}});
        std::vector<double> ogden, reduced, polynomial;
        for (int k = 0; k < order; ++k) {
            ogden.push_back(between(k == 0 ? 0.5 : -0.1, 1));
            ogden.push_back(between(0.5, 6) * (k % 2 == 0 ? 1 : -1));
            reduced.push_back(k == 0 ? between(0.1, 1) : between(-1e-2, 1e-2));
        }
        const auto terms = CoefficientNames(POLYNOMIAL, order).size();
        for (std::size_t k = 0; k < terms; ++k)
            polynomial.push_back(k < 2 ? between(0.1, 1) : between(-1e-2, 1e-2));
        energies.push_back({"Ogden", OGDEN, order, ogden});
        energies.push_back({"ReducedPolynomial", REDUCED_POLYNOMIAL, order, reduced});
        energies.push_back({"Polynomial", POLYNOMIAL, order, polynomial});
    }
    return energies;
}
