#include "zelmat/properties/TestCurves.h"
#include "tests/zelmat/properties/SampleCard.h"

namespace {

using zelmat::mechanics::LoadingMode;

TEST(TestCurves, AreTheThreeTestsOfTreloar) {
    const auto curves = zelmat::TestCurvesOf(SampleCard("natural_rubber_treloar"));

    ASSERT_EQ(curves.size(), 3u);
    EXPECT_EQ(curves[0].mode, LoadingMode::UNIAXIAL);
    EXPECT_EQ(curves[0].points.size(), 24u);
    EXPECT_EQ(curves[0].points.back().stretch, 7.6);
    EXPECT_EQ(curves[0].points.back().nominalStress, 6317600.0);
    EXPECT_EQ(curves[1].mode, LoadingMode::EQUIBIAXIAL);
    EXPECT_EQ(curves[1].points.size(), 16u);
    EXPECT_EQ(curves[2].mode, LoadingMode::PLANAR);
    EXPECT_EQ(curves[2].points.size(), 13u);
    EXPECT_EQ(curves[2].weight, 1.0);
}

TEST(TestCurves, AreNoneOfACardWithoutTests) {
    EXPECT_THAT(zelmat::TestCurvesOf(SampleCard("copper_ofhc")), testing::IsEmpty());
}

}  // namespace
