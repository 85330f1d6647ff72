#include "framework/KORListVal.h"

#include <gtest/gtest.h>

#include "tests/framework/KORTestParts.h"

namespace {

using List = KORListVal<KORTestFeature_var>;

}  // namespace

TEST(KORListVal, CountsPositionsFromOneAndHoldsItsEntries) {
    const auto first = MakeTestFeature("ListedLT");
    const auto second = MakeTestFeature("ListedLT");
    List list;
    EXPECT_EQ(list.Size(), 0);

    list.Append(first);
    list.Append(nullptr);
    list.Append(second);

    EXPECT_EQ(list.Size(), 3);
    EXPECT_EQ(list[1], first);
    EXPECT_EQ(list[2], nullptr);
    EXPECT_EQ(list[3], second);
    EXPECT_EQ(first->References(), 2);
}

TEST(KORListVal, TakesOutOnePosition) {
    const auto first = MakeTestFeature("ListedLT");
    const auto second = MakeTestFeature("ListedLT");
    const auto third = MakeTestFeature("ListedLT");
    List list;
    for (const auto& feature : {first, second, third}) list.Append(feature);

    list.RemovePosition(2);

    EXPECT_EQ(list.Size(), 2);
    EXPECT_EQ(list[1], first);
    EXPECT_EQ(list[2], third);
    EXPECT_EQ(second->References(), 1);
}

TEST(KORListVal, IgnoresPositionsOutsideOfIt) {
    List list;
    list.RemovePosition(1);
    list.Append(MakeTestFeature("ListedLT"));

    list.RemovePosition(0);
    list.RemovePosition(2);
    list.RemovePosition(-1);

    EXPECT_EQ(list.Size(), 1);
}

TEST(KORListVal, GivesItsEntriesBackWhenItIsEmptiedOrGoes) {
    const auto feature = MakeTestFeature("ListedLT");
    {
        List list;
        list.Append(feature);
        list.RemoveAll();
        EXPECT_EQ(list.Size(), 0);
        EXPECT_EQ(feature->References(), 1);
        list.Append(feature);
        EXPECT_EQ(feature->References(), 2);
    }
    EXPECT_EQ(feature->References(), 1);
}

TEST(KORListVal, SharesItsEntriesWithCopiesUntilOneIsWritten) {
    const auto feature = MakeTestFeature("ListedLT");
    List list;
    list.Append(feature);

    List appended = list;
    List shortened = list;
    List emptied = list;
    EXPECT_EQ(feature->References(), 2) << "copying counts nothing";
    appended.Append(feature);
    shortened.RemovePosition(1);
    emptied.RemoveAll();

    EXPECT_EQ(list.Size(), 1);
    EXPECT_EQ(appended.Size(), 2);
    EXPECT_EQ(shortened.Size(), 0);
    EXPECT_EQ(emptied.Size(), 0);
    EXPECT_EQ(feature->References(), 4);
}
