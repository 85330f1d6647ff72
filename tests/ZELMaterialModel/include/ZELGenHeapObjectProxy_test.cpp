#include "ZELMaterialModel/include/ZELGenHeapObjectProxy.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

/// Tells how many of its kind are alive.
struct Shared {
    Shared() { ++alive; }
    virtual ~Shared() { --alive; }
    int value = 7;
    static int alive;
};
int Shared::alive = 0;

using Proxy = ZELGenHeapObjectProxy<Shared>;

}  // namespace

TEST(ZELGenHeapObjectProxy, IsEmptyWhenMadeFromNothing) {
    const Proxy proxy;

    EXPECT_FALSE(proxy.IsObject());
    EXPECT_EQ(proxy.GetNumberOfReferences(), 0);
    EXPECT_EQ(proxy.GetProxyObject(), nullptr);
}

TEST(ZELGenHeapObjectProxy, TakesTheObjectItIsMadeFromAndDeletesItWithItself) {
    {
        auto* object = new Shared;
        const Proxy proxy(object);

        EXPECT_TRUE(proxy.IsObject());
        EXPECT_EQ(proxy.GetNumberOfReferences(), 1);
        EXPECT_TRUE(proxy == object);
        EXPECT_EQ(proxy->value, 7);
        EXPECT_EQ(Shared::alive, 1);
    }

    EXPECT_EQ(Shared::alive, 0);
}

TEST(ZELGenHeapObjectProxy, CountsTwoAfterACopyAndOneAfterTheCopyIsGone) {
    const Proxy proxy(new Shared);
    {
        const Proxy copy(proxy);

        EXPECT_EQ(proxy.GetNumberOfReferences(), 2);
        EXPECT_EQ(copy.GetNumberOfReferences(), 2);
        EXPECT_EQ(copy.GetProxyObject(), proxy.GetProxyObject());
    }

    EXPECT_EQ(proxy.GetNumberOfReferences(), 1);
    EXPECT_EQ(Shared::alive, 1);
}

TEST(ZELGenHeapObjectProxy, KeepsItsCountWhenAssignedToItself) {
    Proxy proxy(new Shared);
    const Proxy& same = proxy;

    proxy = same;

    EXPECT_EQ(proxy.GetNumberOfReferences(), 1);
    EXPECT_EQ(Shared::alive, 1);
}

TEST(ZELGenHeapObjectProxy, DeletesWhatItHeldLastWhenAnotherIsAssigned) {
    Proxy first(new Shared);
    const Proxy second(new Shared);

    first = second;

    EXPECT_EQ(Shared::alive, 1);
    EXPECT_EQ(first.GetProxyObject(), second.GetProxyObject());
    EXPECT_EQ(second.GetNumberOfReferences(), 2);
}

TEST(ZELGenHeapObjectProxy, IsEmptyWithItsObjectDeletedAfterAnEmptyOneIsAssigned) {
    Proxy last(new Shared);
    const Proxy empty;

    last = empty;

    EXPECT_EQ(Shared::alive, 0);
    EXPECT_FALSE(last.IsObject());
    EXPECT_EQ(last.GetNumberOfReferences(), 0);
    EXPECT_EQ(empty.GetNumberOfReferences(), 0);
}

TEST(ZELGenHeapObjectProxy, AssigningAProxyOfTheSameObjectKeepsIt) {
    Proxy first(new Shared);
    const Proxy second(first);

    first = second;

    EXPECT_EQ(first.GetNumberOfReferences(), 2);
    EXPECT_EQ(Shared::alive, 1);
}

TEST(ZELGenHeapObjectProxy, LetsGoOnceAndIsEmptyAfterwards) {
    Proxy proxy(new Shared);
    const Proxy other(proxy);

    proxy.killObject();
    proxy.killObject();

    EXPECT_FALSE(proxy.IsObject());
    EXPECT_EQ(other.GetNumberOfReferences(), 1);
    EXPECT_EQ(Shared::alive, 1);
}

TEST(ZELGenHeapObjectProxy, CountsOneForAnInsertedNullButHoldsNoObject) {
    Proxy proxy(new Shared);

    proxy.InsertObject(nullptr);

    EXPECT_EQ(Shared::alive, 0);
    EXPECT_EQ(proxy.GetNumberOfReferences(), 1);
    EXPECT_FALSE(proxy.IsObject());
    EXPECT_TRUE(proxy == nullptr);
}

TEST(ZELGenHeapObjectProxy, SharesAnInsertedNullToo) {
    Proxy proxy;
    proxy.InsertObject(nullptr);

    const Proxy copy(proxy);

    EXPECT_EQ(copy.GetNumberOfReferences(), 2);
    EXPECT_FALSE(copy.IsObject());
}

TEST(ZELGenHeapObjectProxy, IsEmptyWhenCopiedFromAnEmptyOne) {
    const Proxy empty;

    const Proxy copy(empty);

    EXPECT_FALSE(copy.IsObject());
    EXPECT_EQ(copy.GetNumberOfReferences(), 0);
}
