#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <ostream>

#include "tests/support/ZELTestStore.h"

/// One of the stores under which the module is tested.
struct ZELStoreChoice {
    const char* name;
    std::unique_ptr<ZELTestStore> (*make)();

    friend void PrintTo(const ZELStoreChoice& choice, std::ostream* out) { *out << choice.name; }
};

std::vector<ZELStoreChoice> ZELBothStores();

/// A test that runs once over each store.
class ZELStoreTest : public testing::TestWithParam<ZELStoreChoice> {
protected:
    ZELTestStore& Store() { return *store_; }
    KORISpecObject_var Make(const char* lateType) { return store_->Make(lateType); }
    void CloseStore() { store_.reset(); }  ///< closes its document; Store() and Make() are over

private:
    std::unique_ptr<ZELTestStore> store_ = GetParam().make();
};

/// After the tests of a suite derived from ZELStoreTest: runs them as <Suite>.<Test>/MapStore and so on.
#define ZEL_ON_BOTH_STORES(Suite)                                         \
    INSTANTIATE_TEST_SUITE_P(, Suite, testing::ValuesIn(ZELBothStores()), \
                             [](const auto& choice) { return std::string(choice.param.name); })
