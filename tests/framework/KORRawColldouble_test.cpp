#include "framework/KORRawColldouble.h"

#include <gtest/gtest.h>

#include <limits>
#include <utility>

namespace {

KORRawColldouble Numbered(int size) {
    KORRawColldouble list;
    for (int i = 1; i <= size; ++i) list.Append(i * 10.0);
    return list;
}

}  // namespace

TEST(KORRawColldouble, IsEmptyAtFirst) {
    const KORRawColldouble list;

    EXPECT_EQ(list.Size(), 0);
    EXPECT_EQ(list.Data(), nullptr);
}

TEST(KORRawColldouble, CountsPositionsFromOne) {
    KORRawColldouble list;
    list.Append(7850.0);
    list.Append(-0.5);

    EXPECT_EQ(list.Size(), 2);
    EXPECT_EQ(list[1], 7850.0);
    EXPECT_EQ(list[2], -0.5);
    EXPECT_EQ(list.Data()[0], 7850.0);
}

TEST(KORRawColldouble, KeepsItsValuesWhileItGrows) {
    const KORRawColldouble list = Numbered(1000);

    EXPECT_EQ(list.Size(), 1000);
    EXPECT_EQ(list[1], 10.0);
    EXPECT_EQ(list[7], 70.0);
    EXPECT_EQ(list[1000], 10000.0);
}

TEST(KORRawColldouble, AppendsAnElementOfItsOwn) {
    KORRawColldouble list = Numbered(6);

    list.Append(list[1]);

    EXPECT_EQ(list[7], 10.0);
}

TEST(KORRawColldouble, SharesItsBufferWithCopiesUntilOneIsWritten) {
    KORRawColldouble list = Numbered(3);
    KORRawColldouble copy = list;
    EXPECT_EQ(copy.Data(), list.Data());

    copy.Append(99.0);

    EXPECT_NE(copy.Data(), list.Data());
    EXPECT_EQ(copy.Size(), 4);
    EXPECT_EQ(copy[4], 99.0);
    EXPECT_EQ(list.Size(), 3);

    list.Append(40.0);
    EXPECT_EQ(copy[4], 99.0);
}

TEST(KORRawColldouble, EmptiesOnlyItself) {
    KORRawColldouble list = Numbered(3);
    const KORRawColldouble copy = list;

    list.RemoveAll();
    list.RemoveAll();

    EXPECT_EQ(list.Size(), 0);
    EXPECT_EQ(copy.Size(), 3);
    EXPECT_EQ(copy[3], 30.0);
    list.Append(1.0);
    EXPECT_EQ(list[1], 1.0);
}

TEST(KORRawColldouble, IsEmptyAfterItWasMovedFrom) {
    KORRawColldouble list = Numbered(3);

    const KORRawColldouble moved = std::move(list);

    EXPECT_EQ(moved.Size(), 3);
    EXPECT_EQ(list.Size(), 0);  // NOLINT(bugprone-use-after-move): this is what is tested
}

TEST(KORRawColldouble, IsAssignedFromOthersAndFromItself) {
    KORRawColldouble list = Numbered(3);
    const KORRawColldouble other = Numbered(1);
    const KORRawColldouble& same = list;

    list = same;
    EXPECT_EQ(list.Size(), 3);

    list = other;
    EXPECT_EQ(list.Size(), 1);
    EXPECT_EQ(list.Data(), other.Data());
}

TEST(KORRawColldouble, AppendsWithoutAllocatingWhatWasReserved) {
    KORRawColldouble list;
    list.Reserve(100);
    const double* before = list.Data();
    EXPECT_EQ(list.Size(), 0);

    for (int i = 0; i < 100; ++i) list.Append(i);

    EXPECT_EQ(list.Data(), before);
    EXPECT_EQ(list[100], 99.0);
}

TEST(KORRawColldouble, ReservingLosesNothingAndLeavesCopiesAlone) {
    KORRawColldouble list = Numbered(10);
    const KORRawColldouble copy = list;

    list.Reserve(2);
    list.Append(110.0);

    EXPECT_EQ(list.Size(), 11);
    EXPECT_EQ(list[10], 100.0);
    EXPECT_EQ(copy.Size(), 10);

    const double* before = list.Data();
    list.Reserve(0);
    list.Reserve(-1);
    EXPECT_EQ(list.Data(), before);
}

TEST(KORRawColldouble, ComparesBitByBit) {
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    KORRawColldouble list;
    KORRawColldouble same;
    KORRawColldouble other;
    for (const double value : {1.0, nan, 0.0}) {
        list.Append(value);
        same.Append(value);
    }
    for (const double value : {1.0, nan, -0.0}) other.Append(value);

    EXPECT_TRUE(list.SameBits(same));
    EXPECT_TRUE(list.SameBits(list));
    EXPECT_FALSE(list.SameBits(other)) << "0 and -0 are different bits";
    EXPECT_FALSE(list.SameBits(Numbered(3)));
    EXPECT_FALSE(list.SameBits(Numbered(2)));
    EXPECT_FALSE(list.SameBits(KORRawColldouble()));
    EXPECT_TRUE(KORRawColldouble().SameBits(KORRawColldouble()));
}

TEST(KORRawColldouble, IsTheSameAsAnEmptyListOnceEmptied) {
    KORRawColldouble reserved;
    reserved.Reserve(5);

    EXPECT_TRUE(reserved.SameBits(KORRawColldouble()));
}

TEST(KORRawColldouble, IsExtendedByValuesToFill) {
    KORRawColldouble list;
    list.Append(1.0);
    const KORRawColldouble before(list);

    double* values = list.Extend(2);
    values[0] = 2.0;
    values[1] = 3.0;

    ASSERT_EQ(list.Size(), 3);
    EXPECT_EQ(list[1], 1.0);
    EXPECT_EQ(list[3], 3.0);
    EXPECT_EQ(before.Size(), 1);
}

TEST(KORRawColldouble, IsAsItWasWhenExtendedByNothing) {
    KORRawColldouble list;

    EXPECT_EQ(list.Extend(0), nullptr);

    EXPECT_EQ(list.Size(), 0);
}
