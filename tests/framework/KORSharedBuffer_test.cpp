#include "framework/KORSharedBuffer.h"

#include <gtest/gtest.h>

#include "tests/framework/KORTestParts.h"

namespace {

using Buffer = KORSharedBuffer<KORTestFeature_var>;

Buffer Of(std::initializer_list<KORTestFeature_var> features) {
    Buffer buffer;
    for (const auto& feature : features) buffer.Append(feature);
    return buffer;
}

}  // namespace

TEST(KORSharedBuffer, IsWithoutMemoryAtFirst) {
    const Buffer buffer;

    EXPECT_EQ(buffer.Size(), 0);
    EXPECT_EQ(buffer.First(), nullptr);
}

TEST(KORSharedBuffer, SharesItsElementsUntilOneOfTheCopiesIsWritten) {
    const auto feature = MakeTestFeature("BufferedLT");
    const Buffer buffer = Of({feature, nullptr});
    Buffer copy = buffer;
    EXPECT_EQ(copy.First(), buffer.First());
    EXPECT_EQ(feature->References(), 2) << "counted once for both";

    copy.Append(feature);

    EXPECT_EQ(buffer.Size(), 2);
    EXPECT_EQ(copy.Size(), 3);
    EXPECT_EQ(feature->References(), 4);
}

TEST(KORSharedBuffer, AppendsAnElementOfItsOwnWhileItGrows) {
    const auto feature = MakeTestFeature("BufferedLT");
    Buffer buffer = Of({feature});

    for (int i = 0; i < 100; ++i) buffer.Append(buffer.First()[0]);

    EXPECT_EQ(buffer.Size(), 101);
    EXPECT_EQ(buffer.First()[100], feature);
    EXPECT_EQ(feature->References(), 102);
}

TEST(KORSharedBuffer, TakesAnElementOutOfItsOwnCopyOnly) {
    const auto first = MakeTestFeature("BufferedLT");
    const auto second = MakeTestFeature("BufferedLT");
    const Buffer buffer = Of({first, second});
    Buffer copy = buffer;

    copy.Erase(0);

    EXPECT_EQ(copy.Size(), 1);
    EXPECT_EQ(copy.First()[0], second);
    EXPECT_EQ(buffer.Size(), 2);
    EXPECT_EQ(buffer.First()[0], first);
}

TEST(KORSharedBuffer, GivesItsElementsBackWithTheLastWhoSharesThem) {
    const auto feature = MakeTestFeature("BufferedLT");
    auto buffer = std::make_unique<Buffer>(Of({feature}));
    Buffer copy = *buffer;

    buffer = nullptr;
    EXPECT_EQ(feature->References(), 2);
    copy.Clear();

    EXPECT_EQ(feature->References(), 1);
}

TEST(KORSharedBuffer, CountsItsBareFormLikeABuffer) {
    const auto feature = MakeTestFeature("BufferedLT");
    KORTestFeature_var* bare = Of({feature}).Detach();
    KORTestFeature_var* shared = Buffer::Share(bare);
    EXPECT_EQ(Buffer::SizeOf(bare), 1);

    Buffer::Drop(bare);
    EXPECT_EQ(feature->References(), 2);
    { const Buffer last = Buffer::Adopt(shared); }

    EXPECT_EQ(feature->References(), 1);
    EXPECT_EQ(Buffer::Share(nullptr), nullptr);
    EXPECT_EQ(Buffer::SizeOf(nullptr), 0);
    Buffer::Drop(nullptr);
}

TEST(KORSharedBuffer, LosesNothingWhenLessThanItsSizeIsReserved) {
    const auto feature = MakeTestFeature("BufferedLT");
    Buffer buffer = Of({feature, feature, feature});
    const Buffer copy = buffer;

    buffer.Reserve(1);

    EXPECT_NE(buffer.First(), copy.First()) << "a block of its own";
    EXPECT_EQ(buffer.Size(), 3);
    EXPECT_EQ(feature->References(), 7);
}

TEST(KORSharedBuffer, HasRoomForWhatWasReservedUnlessItIsShared) {
    KORSharedBuffer<double> numbers;
    numbers.Reserve(100);
    const double* first = numbers.First();

    numbers.Extend(100)[99] = 2.5;
    EXPECT_EQ(numbers.First(), first);
    const auto copy = numbers;
    numbers.Own()[99] = 3.5;

    EXPECT_EQ(copy.First()[99], 2.5);
    EXPECT_EQ(numbers.First()[99], 3.5);
    EXPECT_EQ(numbers.Extend(0), nullptr);
}

TEST(KORSharedBuffer, IsResizedWithoutAChangeToWhoSharesIt) {
    const auto feature = MakeTestFeature("BufferedLT");
    Buffer buffer = Of({feature, feature, feature});
    const Buffer copy = buffer;
    EXPECT_TRUE(buffer.IsShared());

    buffer.Resize(1);
    EXPECT_EQ(buffer.Size(), 1);
    EXPECT_FALSE(buffer.IsShared());
    EXPECT_EQ(copy.Size(), 3);
    EXPECT_EQ(feature->References(), 5);

    buffer.Resize(3);
    EXPECT_EQ(buffer.First()[0], feature);
    EXPECT_EQ(buffer.First()[2], nullptr);

    buffer.Resize(0);
    EXPECT_EQ(buffer.Size(), 0);
    EXPECT_EQ(feature->References(), 4);
}
