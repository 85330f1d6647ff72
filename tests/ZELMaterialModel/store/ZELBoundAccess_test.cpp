#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/store/ZELBoundAccess.h"

#include <gmock/gmock.h>

#include <array>

#include "tests/ZELMaterialModel/ZELRows.h"
#include "tests/support/ZELStores.h"

using testing::ElementsAre;
using testing::Optional;

namespace {

class ZELBoundAccessTest : public ZELStoreTest {
protected:
    ZELBoundAccessTest() {
        Store().DefineType("BoundLT", {{"First", ZELKind::ListOfDoubles},
                                       {"Second", ZELKind::ListOfDoubles},
                                       {"Number", ZELKind::Double}});
        feature_ = Make("BoundLT");
        access_ = feature_;
        for (const char* name : {"First", "Second", "Number"}) keys_.push_back(access_->GetAttrKey(name));
    }
    ~ZELBoundAccessTest() override {
        for (KORISpecAttrKey* key : keys_) key->Release();
    }

    KORISpecObject_var feature_;
    KORISpecAttrAccess_var access_;
    std::vector<KORISpecAttrKey*> keys_;
};

}  // namespace

TEST_P(ZELBoundAccessTest, ReadsAndWritesAValue) {
    double read = 7.0;

    EXPECT_EQ(ZELSetBound(access_, keys_[2], 2.5), S_OK);
    EXPECT_EQ(ZELGetBound(access_, keys_[2], read), S_OK);

    EXPECT_EQ(read, 2.5);
}

TEST_P(ZELBoundAccessTest, DoesNothingWithoutAccessOrKey) {
    double read = 7.0;

    EXPECT_EQ(ZELGetBound(nullptr, keys_[2], read), E_FAIL);
    EXPECT_EQ(ZELGetBound(access_, nullptr, read), E_FAIL);
    EXPECT_EQ(ZELSetBound(nullptr, keys_[2], 2.5), E_FAIL);
    EXPECT_EQ(ZELSetBound(access_, nullptr, 2.5), E_FAIL);

    EXPECT_EQ(read, 7.0);
    EXPECT_EQ(GetNumber(feature_, "Number"), 0.0);
}

TEST_P(ZELBoundAccessTest, WritesColumnsUpToAMissingKey) {
    const auto table = ZELTableOf({{1.0, 2.0, 3.0}, {4.0, 5.0, 6.0}});

    EXPECT_EQ(
        ZELSetBoundColumns(access_, std::array<KORISpecAttrKey*, 3>{keys_[0], nullptr, keys_[1]}, table),
        E_FAIL);
    EXPECT_THAT(List(feature_, "First"), Optional(ElementsAre(1.0, 4.0)));
    EXPECT_EQ(List(feature_, "Second"), std::nullopt);

    EXPECT_EQ(ZELSetBoundColumns(access_, std::array{keys_[0], keys_[1]}, table), S_OK);
    EXPECT_THAT(List(feature_, "Second"), Optional(ElementsAre(2.0, 5.0)));
    EXPECT_EQ(ZELSetBoundColumns(nullptr, std::array{keys_[0], keys_[1]}, table), E_FAIL);
}

TEST_P(ZELBoundAccessTest, AppendsRowsOrLeavesTheTable) {
    auto table = ZELTableOf({{9.0}});
    const std::array columns{keys_[0], keys_[1]};
    EXPECT_EQ(ZELGetBoundColumns(access_, columns, table), E_FAIL) << "never valued";
    SetList(feature_, "First", {1.0, 2.0});
    SetList(feature_, "Second", {3.0});
    EXPECT_EQ(ZELGetBoundColumns(access_, columns, table), E_FAIL) << "lengths differ";
    EXPECT_EQ(ZELGetBoundColumns(nullptr, columns, table), E_FAIL);
    EXPECT_EQ(ZELGetBoundColumns(access_, std::array<KORISpecAttrKey*, 2>{keys_[0], nullptr}, table), E_FAIL);
    EXPECT_EQ(ZELRowsOf(table), (ZELRows{{9.0}}));

    SetList(feature_, "Second", {3.0, 4.0});
    EXPECT_EQ(ZELGetBoundColumns(access_, columns, table), S_OK);

    EXPECT_EQ(ZELRowsOf(table), (ZELRows{{9.0}, {1.0, 3.0}, {2.0, 4.0}}));
}

ZEL_ON_BOTH_STORES(ZELBoundAccessTest);
