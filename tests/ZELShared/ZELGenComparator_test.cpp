#include "ZELShared/ZELGenComparator.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

}  // namespace

TEST(ZELGenComparator, AnswersZeroForTheSameNumber) {
    EXPECT_EQ(ZELGenComparator::CompareDouble(0.0, 0.0), 0);
    EXPECT_EQ(ZELGenComparator::CompareDouble(-0.0, 0.0), 0);
    EXPECT_EQ(ZELGenComparator::CompareDouble(210e9, 210e9), 0);
    EXPECT_EQ(ZELGenComparator::CompareDouble(kInfinity, kInfinity), 0);
    EXPECT_EQ(ZELGenComparator::CompareDouble(-kInfinity, -kInfinity), 0);
}

TEST(ZELGenComparator, ToleratesTheSmallestDifferenceAbsolutelyNearZero) {
    EXPECT_EQ(ZELGenComparator::CompareDouble(1e-12, 0.0), 0);
    EXPECT_EQ(ZELGenComparator::CompareDouble(0.0, -1e-12), 0);
    EXPECT_EQ(ZELGenComparator::CompareDouble(1.1e-12, 0.0), 1);
    EXPECT_EQ(ZELGenComparator::CompareDouble(0.0, -1.1e-12), 1);
}

TEST(ZELGenComparator, ToleratesADifferenceRelativeToTheLargerNumber) {
    EXPECT_EQ(ZELGenComparator::CompareDouble(1e9, 1e9 + 9e-4), 0);
    EXPECT_EQ(ZELGenComparator::CompareDouble(1e9, 1e9 + 2e-3), 1);
    EXPECT_EQ(ZELGenComparator::CompareDouble(-1e9, 1e9), 1);
}

TEST(ZELGenComparator, AnswersOneForInfinityAgainstAnyOtherNumber) {
    EXPECT_EQ(ZELGenComparator::CompareDouble(kInfinity, 1e308), 1);
    EXPECT_EQ(ZELGenComparator::CompareDouble(0.0, kInfinity), 1);
    EXPECT_EQ(ZELGenComparator::CompareDouble(kInfinity, -kInfinity), 1);
}

TEST(ZELGenComparator, AnswersOneForWhatIsNoNumberEvenAgainstItself) {
    EXPECT_EQ(ZELGenComparator::CompareDouble(kNotANumber, 0.0), 1);
    EXPECT_EQ(ZELGenComparator::CompareDouble(0.0, kNotANumber), 1);
    EXPECT_EQ(ZELGenComparator::CompareDouble(kNotANumber, kNotANumber), 1);
}
