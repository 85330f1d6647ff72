#include "zelmat/mechanics/laminate/LaminationParameters.h"

#include <gmock/gmock.h>

#include "tests/zelmat/mechanics/laminate/SampleLaminate.h"
#include "zelmat/mechanics/laminate/LaminateStiffness.h"

namespace {

using namespace zelmat::mechanics;
using testing::Each;

TEST(LaminationParameters, AreAllZeroInTheMembraneOfAQuasiIsotropicLaminate) {
    const auto parameters = *LaminationParametersOf(SampleLaminate("quasi_isotropic_t300_5208"));
    EXPECT_THAT(parameters.membrane, Each(0.0));
    EXPECT_THAT(parameters.coupling, Each(0.0));
    EXPECT_NE(parameters.bending[0], 0.0);
}

TEST(LaminationParameters, AreTheOnesOfASingleDirection) {
    const auto along = *LaminationParametersOf(Stacked(GraphiteEpoxy(), 0.001, {0, 0}));
    EXPECT_THAT(along.membrane, testing::ElementsAre(1, 0, 1, 0));
    EXPECT_THAT(along.bending, testing::ElementsAre(testing::DoubleEq(1), 0, testing::DoubleEq(1), 0));
    const auto across = *LaminationParametersOf(Stacked(GraphiteEpoxy(), 0.001, {90}));
    EXPECT_THAT(across.membrane, testing::ElementsAre(-1, 0, 1, 0));
}

TEST(LaminationParameters, OfTwoPliesHaveTheirCoupling) {
    // [0/90]: 4/h^2 (int cos 2t z dz) = 4 (-1/8 - 1/8) = -1.
    const auto parameters = *LaminationParametersOf(Stacked(GraphiteEpoxy(), 0.001, {0, 90}));
    EXPECT_NEAR(parameters.coupling[0], -1, 1e-15);
    EXPECT_EQ(parameters.membrane[0], 0);
}

TEST(LaminationParameters, GiveTheStiffnessBackWithTheInvariantsOfThePly) {
    // A11/h = U1 + V1 U2 + V3 U3 with the invariants of T300/5208 by Tsai and Hahn: 76.37, 85.73, 19.71 GPa.
    const auto laminate = SampleLaminate("kaw_0_30_m45");
    const auto v = LaminationParametersOf(laminate)->membrane;
    EXPECT_NEAR(76.37 + v[0] * 85.73 + v[2] * 19.71, StiffnessOf(laminate)->a[0][0] / 0.015 / 1e9, 0.01);
}

TEST(LaminationParameters, AreRefusedForMoreThanOnePlyMaterial) {
    EXPECT_EQ(LaminationParametersOf(SampleLaminate("sandwich_t300_rohacell")).Why(),
              "lamination parameters exist for one ply material only");
    EXPECT_EQ(LaminationParametersOf({}).Why(), "a laminate needs a layer");
}

}  // namespace
