#include "bench/AllocationCount.h"

#include <cstdlib>
#include <new>

namespace {

std::uint64_t allocations = 0;

}  // namespace

std::uint64_t bench::Allocations() {
    return allocations;
}

// Replaced for the whole program, its shared libraries included; the array and sized forms end here too.

void* operator new(std::size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size == 0 ? 1 : size)) return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
