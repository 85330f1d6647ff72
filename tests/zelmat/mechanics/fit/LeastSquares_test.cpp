#include "zelmat/mechanics/fit/LeastSquares.h"

#include <gmock/gmock.h>

#include <cmath>

#include "zelmat/mechanics/fit/LinearLeastSquares.h"

namespace {

using namespace zelmat::mechanics;
using testing::DoubleNear;
using testing::ElementsAre;

/// Rosenbrock's valley: 10 (y - x^2) and 1 - x, both 0 at (1, 1); without a value for x above `end`.
LeastSquaresProblem Valley(double lower, double upper, double end = 1e9) {
    return {.lower = {lower, -kUnbounded},
            .upper = {upper, kUnbounded},
            .residuals = 2,
            .evaluate = [end](const std::vector<double>& p) -> std::optional<Residuals> {
                if (p[0] > end) return std::nullopt;
                return Residuals{.values = {10 * (p[1] - p[0] * p[0]), 1 - p[0]},
                                 .jacobian = {-20 * p[0], 10, -1, 0}};
            }};
}

TEST(LeastSquares, GoesDownhillToTheMinimum) {
    const auto found = Minimise(Valley(-kUnbounded, kUnbounded), {-1.2, 1});
    ASSERT_TRUE(found);
    EXPECT_TRUE(found->converged);
    EXPECT_NEAR(found->parameters[0], 1, 1e-12);
    EXPECT_NEAR(found->parameters[1], 1, 1e-12);
    EXPECT_NEAR(found->sum, 0, 1e-20);
    EXPECT_THAT(found->atBound, ElementsAre(false, false));
}

TEST(LeastSquares, StopsAtABoundAndSaysWhichOne) {
    const auto found = Minimise(Valley(-1, 0.5), {7, 1});  // the start is moved into the bounds
    ASSERT_TRUE(found);
    EXPECT_NEAR(found->parameters[0], 0.5, 1e-12);
    EXPECT_NEAR(found->parameters[1], 0.25, 1e-9);
    EXPECT_NEAR(found->sum, 0.25, 1e-12);
    EXPECT_THAT(found->atBound, ElementsAre(true, false));
}

TEST(LeastSquares, NeverAcceptsAPlaceWithoutAValue) {
    EXPECT_FALSE(Minimise(Valley(-kUnbounded, kUnbounded, 0.0), {0.5, 0}));
    const auto found = Minimise(Valley(-kUnbounded, kUnbounded, 0.9), {-1.2, 1});
    ASSERT_TRUE(found);
    EXPECT_LE(found->parameters[0], 0.9);
    EXPECT_TRUE(std::isfinite(found->sum));
}

TEST(LinearLeastSquares, FindsTheNearestSumOfColumns) {
    // The line through (0, 1), (1, 3), (2, 4): 7/6 + 3/2 x.
    EXPECT_THAT(SolveLinear({{1, 1, 1}, {0, 1, 2}}, {1, 3, 4}),
                ElementsAre(DoubleNear(7.0 / 6, 1e-14), DoubleNear(1.5, 1e-14)));
    EXPECT_THAT(SolveLinear({}, {1, 2}), ElementsAre());
}

TEST(LinearLeastSquares, SharesBetweenEqualColumns) {
    EXPECT_THAT(SolveLinear({{1, 2}, {1, 2}}, {2, 4}),
                ElementsAre(DoubleNear(1, 1e-14), DoubleNear(1, 1e-14)));
    EXPECT_THAT(SolveLinear({{0, 0}, {1, 2}}, {2, 4}), ElementsAre(0, DoubleNear(2, 1e-14)));
}

}  // namespace
