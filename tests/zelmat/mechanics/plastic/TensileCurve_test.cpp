#include "zelmat/mechanics/plastic/TensileCurve.h"

#include <gmock/gmock.h>

#include <cmath>

namespace {

using namespace zelmat::mechanics;
using testing::Contains;

TEST(StressStrain, IsTrueFromEngineeringAndBack) {
    const auto found = TrueFromEngineering({0.10, 500});  // MPa
    EXPECT_NEAR(found.strain, 0.0953101798, 5e-11);
    EXPECT_NEAR(found.stress, 550, 1e-12);
    EXPECT_NEAR(PlasticStrain(found, 210e3), 0.0926911322, 5e-11);
    EXPECT_NEAR(EngineeringFromTrue(found).strain, 0.1, 1e-16);
    EXPECT_NEAR(EngineeringFromTrue(found).stress, 500, 1e-12);
}

/// Elastic with E = 200,000 up to 400, then rising to 500 at 0.2, then falling.
std::vector<StressStrain> Measured() {
    return {{0, 0}, {0.002, 400}, {0.1, 480}, {0.2, 500}, {0.25, 470}, {0.3, 400}};
}

TEST(TensileCurve, EndsAtNeckingByConsideresCriterion) {
    const auto curve = *ConvertTensileCurve(Measured(), 200e3);
    EXPECT_EQ(curve.necking->strain, 0.2);
    EXPECT_EQ(curve.necking->stress, 500);
    EXPECT_EQ(curve.pointsAfterNecking, 2u);
    ASSERT_EQ(curve.trueCurve.size(), 4u);
    EXPECT_NEAR(curve.trueCurve[3].stress, 600, 1e-12);
    EXPECT_NEAR(curve.trueCurve[3].strain, 0.1823215568, 5e-11);
    EXPECT_NEAR(curve.trueCurve[3].plasticStrain, 0.1793215568, 5e-11);
}

TEST(TensileCurve, CrossesTheOffsetLineAtItsYieldPoint) {
    // 400 + (80/0.098) (e - 0.002) = 200,000 (e - 0.002)
    const auto curve = *ConvertTensileCurve(Measured(), 200e3);
    EXPECT_NEAR(curve.offsetYield->strain, 0.002 + 400 / (200e3 - 80 / 0.098), 1e-12);
    EXPECT_NEAR(curve.offsetYield->stress, 401.6393, 1e-3);
}

TEST(TensileCurve, HardensFromTheYieldPointOnWithRisingPlasticStrain) {
    const auto curve = *ConvertTensileCurve(Measured(), 200e3);
    ASSERT_EQ(curve.hardening.size(), 3u);
    EXPECT_EQ(curve.hardening[0].strain, 0);
    EXPECT_NEAR(curve.hardening[0].stress, 401.6393 * 1.0040082, 1e-3);
    EXPECT_NEAR(curve.hardening[1].stress, 528, 1e-12);
    EXPECT_NEAR(curve.hardening[2].strain - curve.hardening[1].strain,
                std::log(1.2 / 1.1) - (600 - 528) / 200e3, 1e-15);
}

TEST(TensileCurve, ThatRisesToItsEndDoesNotNeckAndOneThatStaysElasticDoesNotYield) {
    const auto curve = *ConvertTensileCurve({{0, 0}, {0.001, 200}, {0.002, 400}}, 200e3);
    EXPECT_FALSE(curve.necking);
    EXPECT_FALSE(curve.offsetYield);
    EXPECT_TRUE(curve.hardening.empty());
    EXPECT_EQ(curve.trueCurve.size(), 3u);
    EXPECT_THAT(curve.notes, Contains("no necking: the curve rises to its end"));
    EXPECT_THAT(curve.notes, Contains("the curve does not cross the offset line: no offset yield point"));
}

TEST(TensileCurve, IsRefusedForWhatNoTestGives) {
    const auto why = [](const std::vector<StressStrain>& points, double youngs, double offset = 0.002) {
        return ConvertTensileCurve(points, youngs, offset).Why();
    };
    EXPECT_EQ(why(Measured(), 0), "Young's modulus has to be above 0");
    EXPECT_EQ(why(Measured(), 200e3, 0), "the offset has to be a strain above 0");
    EXPECT_EQ(why({{0, 0}}, 1), "a curve needs two points");
    EXPECT_EQ(why({{0, 0}, {0, 1}}, 1), "point 2: the strain does not rise");
    EXPECT_EQ(why({{-1, 0}, {0, 1}}, 1), "point 1: an engineering strain has to be above -1");
    EXPECT_EQ(why({{0, 0}, {1, HUGE_VAL}}, 1), "point 2 holds a number that is not finite");
}

}  // namespace
