#include <gtest/gtest.h>

#include "ZELShared/ZELIAnalysisMaterial.h"
#include "ZELShared/ZELIKqcAnalysisCaseFact.h"
#include "ZELShared/ZELIShellSection.h"
#include "framework/KORInstantiateComponent.h"
#include "framework/KORModule.h"
#include "platform/document/KORMemoryDocument.h"
#include "tests/support/ZELCatalogText.h"

namespace {

class ZELAnalysisExtensions : public testing::Test {
protected:
    void SetUp() override {
        KORFileError error;
        ASSERT_TRUE(platform.ShareCatalog(ZELSharedCatalog(), error)) << error.Text();
    }

    ZELIKqcAnalysisCaseFact_var CaseFactory() {
        ZELIKqcAnalysisCaseFact_var factory;
        EXPECT_EQ(S_OK, KORInstantiate("ZELKqcAnalysisCaseFact", factory));
        return factory;
    }
    int PropertySets() const {
        int count = 0;
        document->ForEachFeature(KORName::Intern("ZELZelmarPropertySetLT"),
                                 [&count](KORFeature&) { ++count; });
        return count;
    }

    KORPlatform platform{"."};
    const KORVar<KORMemoryDocument> document = KORMemoryDocument::New(platform);
};

TEST_F(ZELAnalysisExtensions, MarkPlatformMaterials) {
    const auto material = document->NewPlatformFeature("KORMaterialLT", "Steel");
    const auto section = document->NewPlatformFeature("ZELShellSectionEnhLT", "Section");

    EXPECT_TRUE(ZELIAnalysisMaterial_var(material));
    EXPECT_FALSE(ZELIAnalysisMaterial_var(section));
}

TEST_F(ZELAnalysisExtensions, ReadShellSections) {
    const auto feature = document->NewPlatformFeature("ZELShellSectionEnhLT", "Section");
    const auto layup = document->NewPlatformFeature("KORMaterialLT", "anything");
    const ZELIShellSection_var section(feature);
    ASSERT_TRUE(section);
    EXPECT_EQ(0, section->GetSectionType());
    EXPECT_EQ(nullptr, section->GetLayup());

    feature->SetInteger(KORName::Intern("SectionType"), 1, 0);
    feature->SetComponent(KORName::Intern("Layup"), layup.Get(), 0);

    EXPECT_EQ(kZELCompositeSection, section->GetSectionType());
    EXPECT_EQ(KORISpecObject_var(layup.Get()), KORISpecObject_var::Adopt(section->GetLayup()));
    EXPECT_EQ(3, layup->References());  // container, section, test
}

TEST_F(ZELAnalysisExtensions, PutPropertySetsIntoTheAnalysisModel) {
    const auto model = document->AddAnalysisModel();

    EXPECT_EQ(S_OK, CaseFactory()->CreatePropertySet(document.Get()));

    const auto sets = KORISamAnalysisScan_var(model)->Scan("ZELZelmarPropertySetLT", 1);
    ASSERT_EQ(1, sets.Size());
    EXPECT_EQ(KORUnicodeString("ZELZelmarPropertySetLT"), sets[1]->GetName());
    EXPECT_EQ(1, PropertySets());
}

TEST_F(ZELAnalysisExtensions, MakeNoPropertySetWithoutAnAnalysisModel) {
    EXPECT_EQ(E_FAIL, CaseFactory()->CreatePropertySet(document.Get()));
    EXPECT_EQ(E_FAIL, CaseFactory()->CreatePropertySet(nullptr));

    EXPECT_EQ(0, PropertySets());
}

TEST_F(ZELAnalysisExtensions, MakeNoPropertySetOnceTheDocumentIsClosed) {
    document->AddAnalysisModel();
    document->Close();

    EXPECT_EQ(E_FAIL, CaseFactory()->CreatePropertySet(document.Get()));
}

TEST_F(ZELAnalysisExtensions, LeaveNothingAliveBehindThem) {
    const auto material = document->NewPlatformFeature("KORMaterialLT", "Steel");
    ZELIAnalysisMaterial_var mark(material);
    EXPECT_EQ(1, KORModule::Of("ZELShared").LiveObjects());

    mark = nullptr;
    CaseFactory();

    EXPECT_EQ(0, KORModule::Of("ZELShared").LiveObjects());
    EXPECT_EQ(2, material->References());
}

}  // namespace
