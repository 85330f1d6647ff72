#include "zelmat/mechanics/fit/TestCurve.h"

#include <gmock/gmock.h>

#include <cmath>

namespace {

using namespace zelmat::mechanics;
using enum DeviationMeasure;
using enum LoadingMode;
using testing::ElementsAre;
using testing::IsEmpty;

TestCurve Curve(std::vector<TestPoint> points) {
    return {.mode = UNIAXIAL, .points = std::move(points), .weight = 1.0, .lower = {}, .upper = {}};
}

TEST(TestCurve, CountsPointsOfZeroStressForAbsoluteDeviationsOnly) {
    const auto curve = Curve({{1.0, 0.0}, {1.5, 2.0}});

    const auto relative = TakeTestData({curve}, RELATIVE);
    EXPECT_EQ(relative->points.size(), 1u);
    EXPECT_THAT(relative->notes, ElementsAre("1 point of zero stress left out"));

    const auto absolute = TakeTestData({curve}, ABSOLUTE);
    EXPECT_EQ(absolute->points.size(), 2u);
    EXPECT_THAT(absolute->notes, IsEmpty());
}

TEST(TestCurve, KeepsToItsLimitsAndCarriesItsWeight) {
    auto curve = Curve({{0.9, -1}, {1.2, 1}, {1.5, 2}, {1.8, 3}});
    curve.lower = 1.2;
    curve.upper = 1.5;
    curve.weight = 2.5;

    const auto data = TakeTestData({curve}, RELATIVE);

    ASSERT_EQ(data->points.size(), 2u);
    EXPECT_EQ(data->points[0].stretch, 1.2);
    EXPECT_EQ(data->points[1].stretch, 1.5);
    EXPECT_EQ(data->points[1].weight, 2.5);
    EXPECT_THAT(data->notes, ElementsAre("2 points outside the given range left out"));
}

TEST(TestCurve, OutOfOrderOrAgainstTheStrainIsTakenAndSaid) {
    const auto data = TakeTestData({Curve({{1.5, 2}, {1.2, -1}})}, RELATIVE);
    EXPECT_EQ(data->points.size(), 2u);
    EXPECT_THAT(data->warnings,
                ElementsAre("the stretches of a uniaxial test do not rise from point to point: taken "
                            "as they stand",
                            "1 point with a stress against the strain"));
}

TEST(TestCurve, IsRefusedForNumbersThatNoTestGives) {
    const auto why = [](const TestCurve& curve) { return TakeTestData({curve}, RELATIVE).Why(); };
    EXPECT_EQ(why(Curve({{1.5, 2}, {-0.2, 1}})),
              "point 2 of the uniaxial test: a stretch has to be a finite number above 0");
    EXPECT_EQ(why(Curve({{NAN, 2}})),
              "point 1 of the uniaxial test: a stretch has to be a finite number above 0");
    EXPECT_EQ(why(Curve({{1.5, HUGE_VAL}})),
              "point 1 of the uniaxial test: the stress is not a finite number");
    EXPECT_EQ(why(Curve({})), "there is no test point to fit to");
    EXPECT_EQ(why(Curve({{1, 0}})), "there is no test point to fit to");
    auto weightless = Curve({{1.5, 2}});
    weightless.weight = 0.0;
    EXPECT_EQ(why(weightless), "the weight of a uniaxial test has to be above 0");
}

TEST(TestCurve, HasANominalStressOfTheTrueOneOverTheStretch) {
    EXPECT_EQ(NominalStressOf(EQUIBIAXIAL, 2.0, 3.0), 1.5);
    EXPECT_EQ(NominalStressOf(SIMPLE_SHEAR, 2.0, 3.0), 3.0);
}

}  // namespace
