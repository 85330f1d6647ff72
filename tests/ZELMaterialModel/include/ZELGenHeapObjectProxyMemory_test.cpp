#include <gtest/gtest.h>

#include <new>

#include "ZELMaterialModel/include/ZELGenHeapObjectProxy.h"
#include "tests/support/ZELFailingAllocation.h"

namespace {

struct Shared {
    Shared() { ++alive; }
    virtual ~Shared() { --alive; }
    static inline int alive = 0;
};

}  // namespace

TEST(ZELGenHeapObjectProxy, DeletesTheObjectWhenThereIsNoMemoryForItsCounter) {
    ZELGenHeapObjectProxy<Shared> proxy(new Shared);
    auto* object = new Shared;
    bool refused = false;
    try {
        const ZELFailingAllocation fault(1);
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
        const ZELFailingAllocation fault(1);
        const ZELGenHeapObjectProxy<Shared> proxy(object);
    } catch (const std::bad_alloc&) {
        refused = true;
    }

    EXPECT_TRUE(refused);
    EXPECT_EQ(Shared::alive, 0);
}
