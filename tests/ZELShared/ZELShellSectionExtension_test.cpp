#include <gtest/gtest.h>

#include "ZELShared/ZELIShellSection.h"
#include "interfaces/KORIAnalysisDocument.h"
#include "tests/support/ZELMapStore.h"
#include "tests/support/ZELStores.h"

namespace {

class ZELShellSectionExtensionTest : public ZELStoreTest {
protected:
    KORISpecObject_var MakeSection() {
        const ZELUnrecorded unrecorded;
        const auto model = Store().AddAnalysisModel();
        const auto factory = KORISamAnalysisModelFactory_var::Adopt(
            KORIAnalysisDocument_var::Of(Store().Document())->GetFactory());
        return KORISpecObject_var(
            KORBaseUnknown_var::Adopt(factory->CreateEntity("ZELShellSectionEnhLT", "Section", model.Get())));
    }

    KORISpecObject_var feature_ = MakeSection();
    ZELIShellSection_var section_ = feature_;
};

}  // namespace

TEST_P(ZELShellSectionExtensionTest, IsFoundOnShellSectionsOnly) {
    EXPECT_TRUE(section_);
    EXPECT_FALSE(ZELIShellSection_var(Make("ZELLayupLT")));
}

TEST_P(ZELShellSectionExtensionTest, IsHomogeneousAndWithoutLayupAtFirst) {
    EXPECT_EQ(section_->GetSectionType(), 0);
    EXPECT_EQ(section_->GetLayup(), nullptr);
}

TEST_P(ZELShellSectionExtensionTest, ReadsTypeAndLayupFromTheFeature) {
    const auto layup = Make("ZELLayupLT");
    const long references = References(layup);
    SetWhole(feature_, "SectionType", kZELCompositeSection);
    Attach(feature_, "Layup", layup);

    EXPECT_EQ(section_->GetSectionType(), 1);
    EXPECT_EQ(KORISpecObject_var::Adopt(section_->GetLayup()), layup);
    EXPECT_EQ(References(layup), references + 1) << "the section's";
}

TEST_P(ZELShellSectionExtensionTest, HandsATypeOfItsOwnThrough) {
    SetWhole(feature_, "SectionType", -7);

    EXPECT_EQ(section_->GetSectionType(), -7);
}

ZEL_ON_BOTH_STORES(ZELShellSectionExtensionTest);

TEST(ZELShellSectionExtension, IsHomogeneousWithoutAttributeAccess) {
    ZELMapStore store;
    const auto feature = store.Make("ZELShellSectionEnhLT");
    SetWhole(feature, "SectionType", 1);
    const ZELIShellSection_var section = feature;
    store.Calls().RefuseInterface("ZELShellSectionEnhLT", "KORISpecAttrAccess");

    EXPECT_EQ(section->GetSectionType(), 0);
    EXPECT_EQ(section->GetLayup(), nullptr);
}
