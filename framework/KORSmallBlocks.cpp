#include "framework/KORSmallBlocks.h"

#include <array>
#include <new>
#include <utility>

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr bool kWatched = true;
#elif defined(__has_feature)
constexpr bool kWatched = __has_feature(address_sanitizer);
#else
constexpr bool kWatched = false;
#endif

/// A block that nobody uses.
struct Unused {
    Unused* next;
};

constexpr std::size_t kGrain = alignof(std::max_align_t);
constexpr std::size_t kChunk = 32768;

/// By size, in grains.
constinit std::array<Unused*, KORSmallBlocks::kLargest / kGrain + 1> kept{};

/// What is left of the chunk that was taken last: blocks are cut from its beginning.
constinit std::byte* rest = nullptr;
constinit std::size_t restSize = 0;

std::size_t Grains(std::size_t size) {
    return (size + kGrain - 1) / kGrain;
}

void Keep(void* block, std::size_t grains) {
    kept[grains] = new (block) Unused{kept[grains]};
}

/// Apart from its caller, which is short without it.
[[gnu::noinline]] void* Cut(std::size_t grains) {
    const std::size_t size = grains * kGrain;
    if (size > restSize) {
        auto* const chunk = static_cast<std::byte*>(::operator new(kChunk));
        if (restSize > 0) Keep(rest, restSize / kGrain);
        rest = chunk;
        restSize = kChunk;
    }
    restSize -= size;
    return std::exchange(rest, rest + size);
}

}  // namespace

void* KORSmallBlocks::Take(std::size_t size) {
    if (kWatched || size > kLargest) return ::operator new(size);
    const std::size_t grains = Grains(size);
    Unused* const block = kept[grains];
    if (!block) return Cut(grains);
    kept[grains] = block->next;
    return block;
}

void KORSmallBlocks::Give(void* block, std::size_t size) noexcept {
    if (kWatched || size > kLargest) {
        ::operator delete(block);
    } else {
        Keep(block, Grains(size));
    }
}

std::size_t KORSmallBlocks::KeptBytes() {
    std::size_t bytes = restSize;
    for (std::size_t grains = 0; grains < kept.size(); ++grains) {
        for (const Unused* block = kept[grains]; block; block = block->next) bytes += grains * kGrain;
    }
    return bytes;
}
