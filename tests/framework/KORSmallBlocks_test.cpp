#include "framework/KORSmallBlocks.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <set>
#include <vector>

TEST(KORSmallBlocks, AreApartFromEachOtherAndAligned) {
    std::vector<unsigned char*> blocks;
    for (std::size_t size = 1; size <= 600; ++size) {
        blocks.push_back(static_cast<unsigned char*>(KORSmallBlocks::Take(size)));
        std::memset(blocks.back(), static_cast<int>(size % 251), size);
    }

    for (std::size_t size = 1; size <= 600; ++size) {
        const unsigned char* block = blocks[size - 1];
        EXPECT_EQ(0u, reinterpret_cast<std::uintptr_t>(block) % alignof(std::max_align_t)) << size;
        for (std::size_t i = 0; i < size; ++i) ASSERT_EQ(size % 251, block[i]) << "block of " << size;
    }
    for (std::size_t size = 1; size <= 600; ++size) KORSmallBlocks::Give(blocks[size - 1], size);
}

TEST(KORSmallBlocks, KeepsWhatIsGivenBackAndGivesItOutAgain) {
    const auto takeAll = [] {
        std::set<void*> blocks;
        for (int i = 0; i < 2000; ++i) blocks.insert(KORSmallBlocks::Take(96));
        return blocks;
    };
    const std::set<void*> first = takeAll();
    ASSERT_EQ(2000u, first.size());
    const std::size_t kept = KORSmallBlocks::KeptBytes();
    for (void* block : first) KORSmallBlocks::Give(block, 96);
    const std::size_t more = KORSmallBlocks::KeptBytes() - kept;

    const std::set<void*> second = takeAll();

    if (more != 0) {  // where every block is watched, nothing is kept
        EXPECT_EQ(192'000u, more);
        EXPECT_EQ(first, second);
        EXPECT_EQ(kept, KORSmallBlocks::KeptBytes());
    }
    for (void* block : second) KORSmallBlocks::Give(block, 96);
}

TEST(KORSmallBlocks, KeepsNothingOfWhatIsLarge) {
    const std::size_t kept = KORSmallBlocks::KeptBytes();

    KORSmallBlocks::Give(KORSmallBlocks::Take(513), 513);

    EXPECT_EQ(kept, KORSmallBlocks::KeptBytes());
}
