#include "zelmat/mechanics/laminate/LaminateStiffness.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "tests/zelmat/mechanics/laminate/SampleLaminate.h"

namespace {

using namespace zelmat::mechanics;

double Greatest(const Matrix3& matrix) {
    double greatest = 0;
    for (const auto& row : matrix) {
        for (const double entry : row) greatest = std::max(greatest, std::abs(entry));
    }
    return greatest;
}

void ExpectNear(const Matrix3& found, const Matrix3& expected, double tolerance, const std::string& what) {
    for (std::size_t i = 0; i < 3; ++i) {
        for (std::size_t k = 0; k < 3; ++k) {
            EXPECT_NEAR(found[i][k], expected[i][k], tolerance) << what << " " << i << " " << k;
        }
    }
}

TEST(LaminateStiffness, IsThatOfMendoncasGlassLaminate) {
    Laminate laminate;
    laminate.materials.resize(1);
    laminate.materials[0].elastic = {54870, 18320, 0.25, 8900};
    laminate.layers = {{0, 3, 45}, {0, 6, 0}, {0, 3, 45}};
    const auto stiffness = *StiffnessOf(laminate);
    EXPECT_NEAR(stiffness.a[0][0], 515794.00930665, 1e-8);
    EXPECT_NEAR(stiffness.a[0][1], 100823.25453699, 1e-8);
    EXPECT_NEAR(stiffness.d[0][0], 4779418.7240577, 1e-7);
    EXPECT_EQ(Greatest(stiffness.b), 0.0);
    EXPECT_EQ(stiffness.thickness, 12);
}

TEST(LaminateStiffness, IsThatOfEverySampleLayup) {
    for (const auto& name : SampleLaminates()) {
        const auto stiffness = *StiffnessOf(SampleLaminate(name));
        for (const auto& [key, matrix] :
             {std::pair{"A", stiffness.a}, std::pair{"B", stiffness.b}, std::pair{"D", stiffness.d}}) {
            const auto expected = SampleMatrix(name, "computed", key);  // printed with 6 digits
            for (std::size_t i = 0; i < 3; ++i) {
                for (std::size_t k = 0; k < 3; ++k) {
                    EXPECT_NEAR(matrix[i][k], expected[i][k], 6e-6 * std::abs(expected[i][k]) + 1e-12)
                        << name << " " << key;
                }
            }
        }
    }
}

TEST(LaminateStiffness, IsThatOfKawsUnsymmetricExampleToItsFourDigits) {
    const auto stiffness = *StiffnessOf(SampleLaminate("kaw_0_30_m45"));
    ExpectNear(stiffness.a, SampleMatrix("kaw_0_30_m45", "published", "A"), 5e5, "A");
    ExpectNear(stiffness.b, SampleMatrix("kaw_0_30_m45", "published", "B"), 5e2, "B");
    ExpectNear(stiffness.d, SampleMatrix("kaw_0_30_m45", "published", "D"), 5, "D");
    EXPECT_TRUE(ModuliOf(stiffness).coupled);
}

TEST(LaminateStiffness, HasTheModuliOfTsaiAndHahnsQuasiIsotropicLaminate) {
    const auto stiffness = *StiffnessOf(SampleLaminate("quasi_isotropic_t300_5208"));
    const auto moduli = ModuliOf(stiffness);
    EXPECT_NEAR(moduli.membrane.ex, 69.6757e9, 5e4);
    EXPECT_NEAR(moduli.membrane.ey, 69.6757e9, 5e4);
    EXPECT_NEAR(moduli.membrane.gxy, 26.8804e9, 5e4);
    EXPECT_NEAR(moduli.membrane.nuxy, 0.29603, 5e-6);
    EXPECT_FALSE(moduli.coupled);
    EXPECT_NEAR(stiffness.a[0][0] / stiffness.thickness, 76.37e9, 5e6);
    EXPECT_NEAR(stiffness.a[0][1] / stiffness.thickness, 22.61e9, 5e6);
    EXPECT_NEAR(stiffness.a[2][2] / stiffness.thickness, 26.88e9, 5e6);
    EXPECT_NEAR(stiffness.massPerArea.value(), 1.6, 1e-12);
}

TEST(LaminateStiffness, OfIsotropicPliesIsThatOfThePlate) {
    PlyMaterial steel;
    steel.elastic = IsotropicPly(
        *IsotropicFrom({ElasticConstant::YOUNGS_MODULUS, 210e9}, {ElasticConstant::POISSONS_RATIO, 0.3}));
    const auto stiffness = *StiffnessOf(Stacked(steel, 0.001, {0, 17, 45, -30, 90}));
    EXPECT_EQ(Greatest(stiffness.b), 0.0);
    const auto moduli = ModuliOf(stiffness);
    for (const auto& plate : {moduli.membrane, moduli.bending}) {
        EXPECT_NEAR(plate.ex, 210e9, 1);
        EXPECT_NEAR(plate.ey, 210e9, 1);
        EXPECT_NEAR(plate.gxy, 210e9 / 2.6, 1);
        EXPECT_NEAR(plate.nuxy, 0.3, 1e-12);
    }
    EXPECT_NEAR(stiffness.d[0][0], 210e9 * 125e-9 / (12 * 0.91), 1e-9);
    EXPECT_FALSE(stiffness.massPerArea);
}

TEST(LaminateStiffness, HasAnInverse) {
    const auto s = *StiffnessOf(SampleLaminate("kaw_0_30_m45"));
    for (std::size_t i = 0; i < 3; ++i) {
        for (std::size_t k = 0; k < 3; ++k) {
            double one = 0, none = 0;
            for (std::size_t j = 0; j < 3; ++j) {
                one += s.a[i][j] * s.aInverse[j][k] + s.b[i][j] * s.bInverse[k][j];
                none += s.a[i][j] * s.bInverse[j][k] + s.b[i][j] * s.dInverse[j][k];
            }
            EXPECT_NEAR(one, i == k ? 1 : 0, 1e-12);
            EXPECT_NEAR(none, 0, 1e-9);
        }
    }
}

TEST(LaminateStiffness, IsTheSameInOtherUnits) {
    // N, mm and psi, inch against N, m.
    const auto metre = *StiffnessOf(SampleLaminate("kaw_0_30_m45"));
    for (const auto& [length, stress] :
         {std::pair{1e3, 1e-6}, std::pair{1 / 0.0254, 1 / 6894.757293168361}}) {
        auto laminate = SampleLaminate("kaw_0_30_m45");
        for (auto& layer : laminate.layers) layer.thickness *= length;
        for (auto& material : laminate.materials) {
            material.elastic.e1 *= stress;
            material.elastic.e2 *= stress;
            material.elastic.g12 *= stress;
        }
        const auto other = *StiffnessOf(laminate);
        EXPECT_NEAR(other.a[0][2], metre.a[0][2] * stress * length, 1e-12 * std::abs(other.a[0][2]));
        EXPECT_NEAR(other.b[0][0], metre.b[0][0] * stress * length * length, 1e-12 * std::abs(other.b[0][0]));
        EXPECT_NEAR(other.d[1][2], metre.d[1][2] * stress * std::pow(length, 3),
                    1e-12 * std::abs(other.d[1][2]));
    }
}

TEST(LaminateStiffness, IsRefusedForWhatIsNoLaminate) {
    const auto why = [](auto change) {
        auto laminate = Stacked(GraphiteEpoxy(), 0.001, {0, 90});
        change(laminate);
        return StiffnessOf(laminate).Why();
    };
    EXPECT_EQ(why([](Laminate& l) { l.layers.clear(); }), "a laminate needs a layer");
    EXPECT_EQ(why([](Laminate& l) { l.layers[1].material = 1; }), "layer 2 has no material");
    EXPECT_EQ(why([](Laminate& l) { l.layers[0].thickness = 0; }), "layer 1: a thickness has to be above 0");
    EXPECT_EQ(why([](Laminate& l) { l.layers[1].angle = NAN; }), "layer 2: the angle is not a finite number");
    EXPECT_EQ(why([](Laminate& l) { l.materials[0].elastic.e2 = -1; }),
              "E1, E2 and G12 of a ply have to be above 0");
    EXPECT_EQ(why([](Laminate& l) { l.materials[0].density = 0; }), "the density of a ply has to be above 0");
    EXPECT_EQ(why([](Laminate& l) {
                  l.materials[0].expansion = PlyExpansion{NAN, 0};
              }),
              "the thermal expansion of a ply is not a finite number");
    EXPECT_EQ(why([](Laminate& l) { l.materials[0].strength = PlyStrength{1, -1, 1, 1, 1, {}}; }),
              "the strengths of a ply have to be above 0, also in compression");
    EXPECT_EQ(why([](Laminate& l) { l.materials[0].strength = PlyStrength{1, 1, 1, 1, 1, 1.0}; }),
              "F12 is too great: Tsai and Wu's criterion would allow stresses without end");
}

}  // namespace
