#include "tests/support/ZELAllocationFault.h"

#include <new>

namespace {

int allocationsLeft = 0;  ///< until the one that fails; 0: none fails
bool hit = false;

}  // namespace

ZELAllocationFault::ZELAllocationFault(int n) {
    allocationsLeft = n;
    hit = false;
}

ZELAllocationFault::~ZELAllocationFault() {
    allocationsLeft = 0;
}

bool ZELAllocationFault::Hit() const {
    return hit;
}

// Replaces the global one. It allocates through the ordinary operator new, so that the sanitizers still see
// which delete belongs to it.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    if (allocationsLeft > 0 && --allocationsLeft == 0) {
        hit = true;
        return nullptr;
    }
    try {
        return ::operator new(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}
