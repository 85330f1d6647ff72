#include "tests/support/ZELAllocationFault.h"

#include <gtest/gtest.h>

#include <memory>
#include <new>

TEST(ZELAllocationFault, FailsTheNthAllocationThatDoesNotThrowAndNoOther) {
    ZELAllocationFault fault(2);

    const std::unique_ptr<int> first(new (std::nothrow) int(1));
    EXPECT_FALSE(fault.Hit());
    const std::unique_ptr<int> second(new (std::nothrow) int(2));
    const std::unique_ptr<int> third(new (std::nothrow) int(3));

    EXPECT_NE(first, nullptr);
    EXPECT_EQ(second, nullptr);
    EXPECT_NE(third, nullptr);
    EXPECT_TRUE(fault.Hit());
}

TEST(ZELAllocationFault, EndsWithItsScope) {
    { const ZELAllocationFault fault(1); }

    const std::unique_ptr<int> object(new (std::nothrow) int(1));

    EXPECT_NE(object, nullptr);
}
