#include "zelmat/mechanics/fit/FitRanking.h"

#include <gmock/gmock.h>

#include "tests/zelmat/mechanics/fit/SampleTests.h"

namespace {

using namespace zelmat::mechanics;
using enum HyperelasticModel;

TEST(FitRanking, OfTreloarsRubberPutsTheSmallestDeviationFirst) {
    const auto ranking = FitAllModels(SampleCurves("natural_rubber_treloar"), DeviationMeasure::RELATIVE);

    EXPECT_TRUE(ranking.failed.empty());
    ASSERT_EQ(ranking.fits.size(), 12u);
    EXPECT_EQ(ranking.fits[0].model, OGDEN);
    EXPECT_EQ(ranking.fits[0].order, 3);
    EXPECT_EQ(ranking.fits[1].model, POLYNOMIAL);
    EXPECT_EQ(ranking.fits[1].order, 3);
    EXPECT_EQ(ranking.fits[2].model, VAN_DER_WAALS);
    EXPECT_EQ(ranking.fits[11].model, NEO_HOOKE);
    for (std::size_t i = 1; i < ranking.fits.size(); ++i) {
        EXPECT_LE(ranking.fits[i - 1].deviation.rmsRelative, ranking.fits[i].deviation.rmsRelative);
    }
}

TEST(FitRanking, NamesThePotentialsThatTheTestsAreTooFewFor) {
    const TestCurve curve{.mode = LoadingMode::UNIAXIAL,
                          .points = {{1.5, 1.1}, {2, 1.8}},
                          .weight = 1.0,
                          .lower = {},
                          .upper = {}};
    const auto ranking = FitAllModels({curve}, DeviationMeasure::ABSOLUTE, 2);
    EXPECT_EQ(ranking.fits.size(), 4u);  // with one or two coefficients
    ASSERT_EQ(ranking.failed.size(), 4u);
    EXPECT_EQ(ranking.failed[0].model, YEOH);
    EXPECT_EQ(ranking.failed[0].why, "2 test points are too few for the 3 coefficients of YEOH");
}

}  // namespace
