#include "platform/disk/KORPackedBytes.h"

#include <gtest/gtest.h>

namespace {

std::string Packed(std::uint64_t count) {
    KORPacker packer;
    packer.Count(count);
    return packer.Bytes();
}

TEST(KORPackedBytes, ACountTakesSevenBitsAByteTheLowestFirst) {
    EXPECT_EQ(std::string(1, '\0'), Packed(0));
    EXPECT_EQ("\x7F", Packed(127));
    EXPECT_EQ("\x80\x01", Packed(128));
    EXPECT_EQ("\xAC\x02", Packed(300));
    EXPECT_EQ("\xFF\xFF\xFF\xFF\x0F", Packed(0xFFFFFFFFu));
}

TEST(KORPackedBytes, ACountComesBack) {
    for (const std::uint64_t count :
         {0ul, 1ul, 127ul, 128ul, 16383ul, 16384ul, 0xFFFFFFFFul, (1ul << 62) - 1}) {
        const std::string bytes = Packed(count);
        KORUnpacker unpacker(bytes);
        EXPECT_EQ(count, unpacker.Count());
        EXPECT_TRUE(unpacker.AtEnd());
        EXPECT_FALSE(unpacker.Failed());
    }
}

TEST(KORPackedBytes, ACountThatDoesNotEndFails) {
    KORUnpacker cut("\x80\x80");
    EXPECT_EQ(0u, cut.Count());
    EXPECT_TRUE(cut.Failed());
    KORUnpacker tooLong("\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\x01");
    EXPECT_EQ(0u, tooLong.Count());
    EXPECT_TRUE(tooLong.Failed());
}

TEST(KORPackedBytes, ATextComesBackWithWhatStandsBehindANul) {
    KORPacker packer;
    packer.Text(std::string_view("a\0b", 3));
    KORUnpacker unpacker(packer.Bytes());
    EXPECT_EQ(std::string_view("a\0b", 3), unpacker.Text());
    EXPECT_TRUE(unpacker.AtEnd());
}

TEST(KORPackedBytes, NothingIsReadBehindTheEnd) {
    KORUnpacker text(
        std::string_view("\x05"
                         "abcd",
                         5));
    EXPECT_EQ("", text.Text());
    EXPECT_TRUE(text.Failed());
    EXPECT_TRUE(text.AtEnd());
    EXPECT_EQ(0u, text.Byte());
    KORUnpacker raw("abc");
    EXPECT_EQ("", raw.Raw(4));
    EXPECT_TRUE(raw.Failed());
    KORUnpacker many(
        std::string_view("\x03"
                         "12345678"
                         "12345678"
                         "1234567",
                         24));
    EXPECT_EQ(0u, many.CountOf(8));
    EXPECT_TRUE(many.Failed());
    KORUnpacker empty("");
    EXPECT_EQ(0u, empty.Count());
    EXPECT_TRUE(empty.Failed());
}

}  // namespace
