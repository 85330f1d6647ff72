#include "tests/support/ZELMapStore.h"

#include <gmock/gmock.h>

#include <memory>

#include "interfaces/KORIAnalysisDocument.h"
#include "interfaces/KORICutAndPastable.h"
#include "interfaces/KORILinkableObject.h"
#include "interfaces/KORISamAnalysisEntity.h"
#include "interfaces/KORISamAnalysisSet.h"

namespace {

/// One of every kind of object of a map store, held while the store is closed.
class ZELMapStoreClosed : public testing::Test {
protected:
    ZELMapStoreClosed() {
        Attach(material_, "ZELElastic", part_);
        const auto analysis = KORIAnalysisDocument_var(document_);
        factory_ = KORISamAnalysisModelFactory_var::Adopt(analysis->GetFactory());
        store_ = nullptr;
    }

    std::unique_ptr<ZELMapStore> store_ = std::make_unique<ZELMapStore>();
    KORDocument_var document_{store_->Document()};
    KORIContainer_var container_ = store_->Container();
    KORISpecObject_var model_ = store_->AddAnalysisModel();
    KORISpecObject_var material_ = store_->Make("ZELMaterialLT");
    KORISpecObject_var part_ = store_->Make("ZELElasticLT");
    KORISpecObject_var set_ = store_->Make("ZELZelmarPropertySetLT");
    KORISpecObject_var layup_ = store_->Make("ZELLayupLT");
    KORISamAnalysisModelFactory_var factory_;
};

}  // namespace

TEST_F(ZELMapStoreClosed, KeepsNoFeatureAliveThatNobodyHolds) {
    EXPECT_EQ(References(material_), 1);
    EXPECT_EQ(References(part_), 1);
    EXPECT_EQ(References(layup_), 1);
}

TEST_F(ZELMapStoreClosed, LeavesEmptyFeaturesInNoContainer) {
    EXPECT_EQ(material_->GetFeatContainer(), nullptr);
    EXPECT_EQ(KORISpecAttrAccess_var(material_)->GetSpecObject("ZELElastic", 0), nullptr);
    EXPECT_EQ(KORILinkableObject_var(material_)->GetDocument(), nullptr);
}

TEST_F(ZELMapStoreClosed, HasNoContainerAndNoModel) {
    EXPECT_EQ(document_->GetFeatContainer(), nullptr);
    EXPECT_EQ(KORIAnalysisDocument_var(document_)->GetAnalysisModel(), nullptr);
    EXPECT_EQ(container_->GetDocument(), nullptr);
}

TEST_F(ZELMapStoreClosed, MakesAndCopiesNothing) {
    KORListValKORISpecObject_var wanted;
    KORListValKORISpecObject_var copies;
    wanted.Append(material_);

    EXPECT_EQ(factory_->CreateEntity("ZELLayupLT", "Layup", model_.Get()), nullptr);
    EXPECT_EQ(KORICutAndPastable_var(container_)->Paste(wanted, copies), E_FAIL);
    EXPECT_EQ(copies.Size(), 0);
}

TEST_F(ZELMapStoreClosed, FindsNoSetsAndTakesChildrenFromNoModel) {
    EXPECT_EQ(KORISamAnalysisEntity_var(layup_)->GetParentSets().Size(), 0);

    KORISamAnalysisSet_var(set_)->AddChild(layup_);

    EXPECT_EQ(References(layup_), 2) << "the set that is still held holds it";
}
