#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

#include "ZELMaterialModel/include/ZELGenHeapObjectProxy.h"

namespace {

bool memoryIsShort = false;

struct Shared {
    Shared() { ++alive; }
    virtual ~Shared() { --alive; }
    static inline int alive = 0;
};

/// No allocation succeeds while it lives.
struct ShortMemory {
    ShortMemory() { memoryIsShort = true; }
    ~ShortMemory() { memoryIsShort = false; }
};

}  // namespace

void* operator new(std::size_t size) {
    void* memory = memoryIsShort ? nullptr : std::malloc(size);
    if (!memory) throw std::bad_alloc();
    return memory;
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

TEST(ZELGenHeapObjectProxy, DeletesTheObjectWhenThereIsNoMemoryForItsCounter) {
    ZELGenHeapObjectProxy<Shared> proxy(new Shared);
    auto* object = new Shared;
    bool refused = false;
    try {
        const ShortMemory shortMemory;
        proxy.InsertObject(object);
    } catch (const std::bad_alloc&) {
        refused = true;
    }

    EXPECT_TRUE(refused);
    EXPECT_EQ(Shared::alive, 0) << "neither the old one nor the new one is left";
    EXPECT_FALSE(proxy.IsObject());
    EXPECT_EQ(proxy.GetNumberOfReferences(), 0);
}

TEST(ZELGenHeapObjectProxy, LeavesNothingBehindWhenItCannotBeMadeFromAnObject) {
    auto* object = new Shared;
    bool refused = false;
    try {
        const ShortMemory shortMemory;
        const ZELGenHeapObjectProxy<Shared> proxy(object);
    } catch (const std::bad_alloc&) {
        refused = true;
    }

    EXPECT_TRUE(refused);
    EXPECT_EQ(Shared::alive, 0);
}
