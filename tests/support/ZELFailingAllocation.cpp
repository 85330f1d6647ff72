#include "tests/support/ZELFailingAllocation.h"

#include <cstdlib>
#include <new>

namespace {

int left = 0;  ///< allocations until the one that fails, itself included; 0: none fails
bool hit = false;

}  // namespace

ZELFailingAllocation::ZELFailingAllocation(int n) {
    left = n;
    hit = false;
}

ZELFailingAllocation::~ZELFailingAllocation() {
    left = 0;
}

bool ZELFailingAllocation::Hit() const {
    return hit;
}

void* operator new(std::size_t size) {
    const bool fails = left > 0 && --left == 0;
    hit = hit || fails;
    void* memory = fails ? nullptr : std::malloc(size);
    if (!memory) throw std::bad_alloc();
    return memory;
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    try {
        return ::operator new(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
void operator delete(void* memory,
                     const std::nothrow_t&) noexcept {  // what is made so and whose constructor throws
    std::free(memory);
}
