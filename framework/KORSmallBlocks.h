#pragma once

#include <cstddef>

/// Memory for what a document has very many of: its features, and the buffers below texts and lists. Blocks
/// that are given back are kept by their size and given out again, which takes a tenth of what the general
/// allocator does; larger ones than kLargest come from operator new. What is kept serves blocks of that size
/// alone and goes back to the system at the end of the process. No locks: for the application thread.
///
/// In builds with AddressSanitizer all blocks come from operator new, so that each one is watched.
class KORSmallBlocks {
public:
    static constexpr std::size_t kLargest = 512;

    /// A block of at least this size, aligned for any type. Throws std::bad_alloc.
    static void* Take(std::size_t size);

    /// Takes a block back that was taken for this size.
    static void Give(void* block, std::size_t size) noexcept;

    /// How much is kept for blocks to come: for whoever measures what is in use.
    static std::size_t KeptBytes();
};
