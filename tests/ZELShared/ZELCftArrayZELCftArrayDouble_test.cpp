#include "ZELShared/ZELCftArrayZELCftArrayDouble.h"

#include <gtest/gtest.h>

#include <utility>

namespace {

ZELCftArraydouble Row(double first, double second) {
    const double values[] = {first, second};
    return ZELCftArraydouble(2, values);
}

}  // namespace

TEST(ZELCftArrayZELCftArrayDouble, IsEmptyWhenMadeWithSizeZero) {
    const ZELCftArrayZELCftArrayDouble table(0, nullptr);

    EXPECT_EQ(table.size(), 0);
}

TEST(ZELCftArrayZELCftArrayDouble, TakesItsInitialRowsInOrder) {
    const ZELCftArraydouble rows[] = {Row(1, 2), Row(3, 4)};

    const ZELCftArrayZELCftArrayDouble table(2, rows);

    ASSERT_EQ(table.size(), 2);
    EXPECT_EQ(table[0][1], 2.0);
    EXPECT_EQ(table[1][0], 3.0);
}

TEST(ZELCftArrayZELCftArrayDouble, HasEmptyRowsWhenOnlyASizeIsGiven) {
    const ZELCftArrayZELCftArrayDouble table(3);

    ASSERT_EQ(table.size(), 3);
    EXPECT_EQ(table[2].size(), 0);
}

TEST(ZELCftArrayZELCftArrayDouble, AppendsACopyOfARow) {
    ZELCftArrayZELCftArrayDouble table;
    ZELCftArraydouble row = Row(1, 2);

    EXPECT_TRUE(table.push_back(row));
    row[0] = 9.0;

    ASSERT_EQ(table.size(), 1);
    EXPECT_EQ(table[0][0], 1.0);
}

TEST(ZELCftArrayZELCftArrayDouble, AppendsARowOfItsOwn) {
    ZELCftArrayZELCftArrayDouble table;
    table.push_back(Row(1, 2));

    for (int i = 0; i < 10; ++i) EXPECT_TRUE(table.push_back(table[0]));

    ASSERT_EQ(table.size(), 11);
    EXPECT_EQ(table[10][1], 2.0);
}

TEST(ZELCftArrayZELCftArrayDouble, CopiesARowOutByIndexAndRefusesOthers) {
    ZELCftArrayZELCftArrayDouble table;
    table.push_back(Row(1, 2));
    ZELCftArraydouble row = Row(8, 9);

    EXPECT_FALSE(table.GetAtIndex(1, row));
    EXPECT_FALSE(table.GetAtIndex(-1, row));
    EXPECT_EQ(row[0], 8.0);

    EXPECT_TRUE(table.GetAtIndex(0, row));
    EXPECT_EQ(row[0], 1.0);
}

TEST(ZELCftArrayZELCftArrayDouble, AnswersAnEmptyRowOutsideItsRangeAndKeepsNothingWrittenThere) {
    ZELCftArrayZELCftArrayDouble table;

    table[0].push_back(5.0);

    EXPECT_EQ(table[0].size(), 0);
    EXPECT_EQ(table[-1].size(), 0);
    EXPECT_EQ(table.size(), 0);
}

TEST(ZELCftArrayZELCftArrayDouble, CopiesAreDeep) {
    ZELCftArrayZELCftArrayDouble table;
    table.push_back(Row(1, 2));

    const ZELCftArrayZELCftArrayDouble copy(table);
    ZELCftArrayZELCftArrayDouble assigned;
    assigned = table;
    table[0][0] = 7.0;

    EXPECT_EQ(copy[0][0], 1.0);
    EXPECT_EQ(assigned[0][0], 1.0);
}

TEST(ZELCftArrayZELCftArrayDouble, CopiesShareTheirRowsUntilOneIsWritten) {
    ZELCftArrayZELCftArrayDouble table;
    table.push_back(Row(1, 2));

    ZELCftArrayZELCftArrayDouble copy(table);
    EXPECT_EQ(&std::as_const(copy)[0], &std::as_const(table)[0]);

    copy[0][0] = 7.0;
    EXPECT_NE(&std::as_const(copy)[0], &std::as_const(table)[0]);
    EXPECT_EQ(std::as_const(table)[0][0], 1.0);
    EXPECT_EQ(std::as_const(copy)[0][0], 7.0);
}

TEST(ZELCftArrayZELCftArrayDouble, ARowHandedOutForWritingIsItsOwnAlsoAfterACopyWasMade) {
    ZELCftArrayZELCftArrayDouble table;
    table.push_back(Row(1, 2));
    ZELCftArraydouble& row = table[0];

    const ZELCftArrayZELCftArrayDouble copy(table);
    ZELCftArrayZELCftArrayDouble assigned;
    assigned = table;
    row[0] = 7.0;

    EXPECT_EQ(copy[0][0], 1.0);
    EXPECT_EQ(std::as_const(assigned)[0][0], 1.0);
    EXPECT_EQ(std::as_const(table)[0][0], 7.0);
}

TEST(ZELCftArrayZELCftArrayDouble, EveryChangeLeavesACopyAsItWas) {
    const ZELCftArraydouble rows[] = {Row(5, 6), Row(7, 8), Row(9, 10)};
    using Table = ZELCftArrayZELCftArrayDouble;
    void (*const changes[])(Table&) = {
        [](Table& table) { table.push_back(Row(0, 0)); },
        [](Table& table) { table.push_back(std::as_const(table)[0]); },
        [](Table& table) { table.Resize(1); },
        [](Table& table) { table.Resize(0); },
        [](Table& table) { table.Resize(4); },
        [](Table& table) { table.Initialize(0, nullptr); },
        [](Table& table) { table.Initialize(2, nullptr); },
        [](Table& table) { table.Initialize(1, &std::as_const(table)[2]); },
        [](Table& table) { table.Refill(3)[0] = Row(0, 0); },
        [](Table& table) { table.Kill(); },
        [](Table& table) { table = Table(); },
        [](Table& table) { const Table taken(std::move(table)); },
    };
    for (const auto change : changes) {
        Table table(3, rows);
        const Table copy(table);

        change(table);

        ASSERT_EQ(copy.size(), 3);
        EXPECT_EQ(copy[0][0], 5.0);
        EXPECT_EQ(copy[2][1], 10.0);
    }
}

TEST(ZELCftArrayZELCftArrayDouble, KeepsTheFirstRowsWhenASharedTableIsCut) {
    const ZELCftArraydouble rows[] = {Row(5, 6), Row(7, 8)};
    ZELCftArrayZELCftArrayDouble table(2, rows);
    const ZELCftArrayZELCftArrayDouble copy(table);

    table.Resize(1);

    ASSERT_EQ(table.size(), 1);
    EXPECT_EQ(std::as_const(table)[0][1], 6.0);
    EXPECT_EQ(copy.size(), 2);
}

TEST(ZELCftArrayZELCftArrayDouble, IsResetToOneOfItsOwnRows) {
    const ZELCftArraydouble rows[] = {Row(5, 6), Row(7, 8)};
    ZELCftArrayZELCftArrayDouble table(2, rows);

    table.Initialize(1, &std::as_const(table)[1]);

    ASSERT_EQ(table.size(), 1);
    EXPECT_EQ(std::as_const(table)[0][0], 7.0);
}

TEST(ZELCftArrayZELCftArrayDouble, IsRefilledInItsOwnRowsUnlessTheyAreShared) {
    ZELCftArrayZELCftArrayDouble table(2);
    const ZELCftArraydouble* const own = &std::as_const(table)[0];
    EXPECT_EQ(table.Refill(2), own);
    EXPECT_EQ(table.Refill(1), own);
    EXPECT_EQ(table.size(), 1);

    const ZELCftArrayZELCftArrayDouble copy(table);
    EXPECT_NE(table.Refill(1), own);
    EXPECT_EQ(&copy[0], own);
    EXPECT_EQ(ZELCftArrayZELCftArrayDouble().Refill(0), nullptr);
}

TEST(ZELCftArrayZELCftArrayDouble, IsEmptiedByInitializeAndByKill) {
    for (const bool kill : {false, true}) {
        ZELCftArrayZELCftArrayDouble table(2);

        if (kill) {
            table.Kill();
        } else {
            table.Initialize(0, nullptr);
        }

        EXPECT_EQ(table.size(), 0);
        table.push_back(Row(3, 4));
        EXPECT_EQ(table[0][1], 4.0);
    }
}

TEST(ZELCftArrayZELCftArrayDouble, IsResetToTheGivenRowsByInitialize) {
    const ZELCftArraydouble rows[] = {Row(5, 6)};
    ZELCftArrayZELCftArrayDouble table(4);

    table.Initialize(1, rows);

    ASSERT_EQ(table.size(), 1);
    EXPECT_EQ(table[0][1], 6.0);
}

TEST(ZELCftArrayZELCftArrayDouble, PreparingRoomAddsNoRow) {
    ZELCftArrayZELCftArrayDouble table;

    table.Prepare(1000);

    EXPECT_EQ(table.size(), 0);
}

TEST(ZELCftArrayZELCftArrayDouble, KeepsItsRowsAndAddsEmptyOnesWhenItIsResized) {
    ZELCftArrayZELCftArrayDouble table;
    table.push_back(Row(1, 2));

    table.Resize(3);
    ASSERT_EQ(table.size(), 3);
    EXPECT_EQ(table[0][1], 2.0);
    EXPECT_EQ(table[2].size(), 0);

    table.Resize(1);
    ASSERT_EQ(table.size(), 1);
    EXPECT_EQ(table[0][0], 1.0);
}

TEST(ZELCftArrayZELCftArrayDouble, TakesANegativeSizeForNone) {
    const ZELCftArraydouble rows[] = {Row(1, 2)};
    EXPECT_EQ(ZELCftArrayZELCftArrayDouble(-1).size(), 0);
    EXPECT_EQ(ZELCftArrayZELCftArrayDouble(-1, rows).size(), 0);
    ZELCftArrayZELCftArrayDouble table(1, rows);

    table.Prepare(-1);
    EXPECT_EQ(table.size(), 1) << "room changes nothing";
    table.Resize(-1);
    EXPECT_EQ(table.size(), 0);

    table.push_back(rows[0]);
    table.Initialize(-1, rows);
    EXPECT_EQ(table.size(), 0);
}
