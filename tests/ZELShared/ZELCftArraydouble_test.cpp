#include "ZELShared/ZELCftArraydouble.h"

#include <gtest/gtest.h>

#include <utility>

TEST(ZELCftArraydouble, IsEmptyWhenMadeWithSizeZero) {
    const ZELCftArraydouble row(0, nullptr);

    EXPECT_EQ(row.size(), 0);
}

TEST(ZELCftArraydouble, TakesItsInitialValuesInOrder) {
    const double values[] = {210e9, 0.3, 293.15};

    const ZELCftArraydouble row(3, values);

    ASSERT_EQ(row.size(), 3);
    EXPECT_EQ(row[0], 210e9);
    EXPECT_EQ(row[1], 0.3);
    EXPECT_EQ(row[2], 293.15);
}

TEST(ZELCftArraydouble, IsFilledWithZerosWhenNoInitialValuesAreGiven) {
    const ZELCftArraydouble row(2);

    ASSERT_EQ(row.size(), 2);
    EXPECT_EQ(row[0], 0.0);
    EXPECT_EQ(row[1], 0.0);
}

TEST(ZELCftArraydouble, KeepsEveryNumberWhenItGrowsBeyondTheRow) {
    ZELCftArraydouble row;

    for (int i = 0; i < 20; ++i) EXPECT_TRUE(row.push_back(i * 0.5));

    ASSERT_EQ(row.size(), 20);
    EXPECT_EQ(row[0], 0.0);
    EXPECT_EQ(row[4], 2.0);
    EXPECT_EQ(row[19], 9.5);
}

TEST(ZELCftArraydouble, AppendsANumberOfItsOwn) {
    const double values[] = {1.0, 2.0, 3.0, 4.0};
    ZELCftArraydouble row(4, values);

    EXPECT_TRUE(row.push_back(row[0]));

    ASSERT_EQ(row.size(), 5);
    EXPECT_EQ(row[4], 1.0);
}

TEST(ZELCftArraydouble, AnswersZeroOutsideItsRangeAndKeepsNothingWrittenThere) {
    ZELCftArraydouble row;
    row.push_back(7.0);

    row[1] = 99.0;
    row[-1] = 98.0;

    EXPECT_EQ(row[1], 0.0);
    EXPECT_EQ(row[-1], 0.0);
    EXPECT_EQ(row.size(), 1);
    EXPECT_EQ(row[0], 7.0);
}

TEST(ZELCftArraydouble, CopiesAreIndependent) {
    for (const int size : {2, 9}) {
        ZELCftArraydouble row(size);
        ZELCftArraydouble copy(row);
        ZELCftArraydouble assigned;
        assigned = row;

        row[0] = 5.0;

        EXPECT_EQ(copy.size(), size);
        EXPECT_EQ(assigned.size(), size);
        EXPECT_EQ(copy[0], 0.0);
        EXPECT_EQ(assigned[0], 0.0);
    }
}

TEST(ZELCftArraydouble, AssignmentReplacesAWideRowByANarrowOneAndBack) {
    const double wideValues[] = {1, 2, 3, 4, 5, 6};
    const double narrowValues[] = {8, 9};
    const ZELCftArraydouble wide(6, wideValues);
    const ZELCftArraydouble narrow(2, narrowValues);
    ZELCftArraydouble row(wide);

    row = narrow;
    EXPECT_EQ(row.size(), 2);
    EXPECT_EQ(row[1], 9.0);

    row = wide;
    EXPECT_EQ(row.size(), 6);
    EXPECT_EQ(row[5], 6.0);
}

TEST(ZELCftArraydouble, AssigningARowToItselfChangesNothing) {
    const double values[] = {1, 2, 3, 4, 5};
    ZELCftArraydouble row(5, values);
    const ZELCftArraydouble& same = row;

    row = same;

    ASSERT_EQ(row.size(), 5);
    EXPECT_EQ(row[4], 5.0);
}

TEST(ZELCftArraydouble, MovingLeavesTheSourceUsable) {
    for (const int size : {3, 8}) {
        ZELCftArraydouble source(size);
        source[0] = 4.0;

        ZELCftArraydouble moved(std::move(source));
        source = ZELCftArraydouble();
        source.push_back(1.0);

        EXPECT_EQ(moved.size(), size);
        EXPECT_EQ(moved[0], 4.0);
        EXPECT_EQ(source.size(), 1);
        EXPECT_EQ(source[0], 1.0);
    }
}

TEST(ZELCftArraydouble, MoveAssignmentFreesWhatAWideRowHeld) {
    ZELCftArraydouble row(10);
    ZELCftArraydouble wide(6);
    wide[5] = 6.0;

    row = std::move(wide);
    ASSERT_EQ(row.size(), 6);
    EXPECT_EQ(row[5], 6.0);

    row = ZELCftArraydouble(1);
    EXPECT_EQ(row.size(), 1);
}

TEST(ZELCftArraydouble, PreparingRoomChangesNeitherSizeNorNumbers) {
    const double values[] = {1.5, 2.5};
    ZELCftArraydouble row(2, values);

    EXPECT_TRUE(row.Prepare(100));

    ASSERT_EQ(row.size(), 2);
    EXPECT_EQ(row[1], 2.5);
}

TEST(ZELCftArraydouble, IsMadeAnotherRowOfNumbersAtOnce) {
    for (const int size : {0, 2, 9}) {
        ZELCftArraydouble row(size);

        row.Assign({210e9, 0.3, 293.15});

        ASSERT_EQ(row.size(), 3);
        EXPECT_EQ(row[0], 210e9);
        EXPECT_EQ(row[2], 293.15);
        EXPECT_EQ(row[3], 0.0);
    }
}

TEST(ZELCftArraydouble, TakesANegativeSizeForNone) {
    const double values[] = {1.0};
    EXPECT_EQ(ZELCftArraydouble(-1).size(), 0);
    ZELCftArraydouble row(-1, values);
    EXPECT_EQ(row.size(), 0);

    row.push_back(7.0);
    EXPECT_TRUE(row.Prepare(-1));

    EXPECT_EQ(row.size(), 1);
    EXPECT_EQ(row[0], 7.0);
}
