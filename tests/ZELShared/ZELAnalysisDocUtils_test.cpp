#include "ZELShared/ZELAnalysisDocUtils.h"

#include <gmock/gmock.h>

#include "interfaces/KORISamAnalysisModel.h"
#include "tests/support/ZELMapStore.h"
#include "tests/support/ZELStores.h"
#include "tests/support/ZELTestServices.h"

namespace {

constexpr const char* kCatalog = "ZELMaterialPropertiesCatalog.KORfct";

class ZELAnalysisDocUtilsTest : public ZELStoreTest {
protected:
    ZELTestServices services_;
    KORDocument* document_ = nullptr;
    KORIContainer* container_ = nullptr;
    KORISamAnalysisModelFactory_var factory_;
    KORISamAnalysisModel_var model_;
};

}  // namespace

TEST_P(ZELAnalysisDocUtilsTest, FindsTheDocumentThatTheUserWorksOn) {
    services_.Table().currentDocument = KORBaseUnknown_var::Of(Store().Document()).Get();
    const long references = services_.Table().currentDocument->References();

    EXPECT_EQ(ZELAnalysisDocUtils::GetCurrentDocument(document_), S_OK);

    EXPECT_EQ(document_, Store().Document());
    EXPECT_EQ(services_.Table().currentDocument->References(), references) << "none of its own";
}

TEST_P(ZELAnalysisDocUtilsTest, FindsNoDocumentWhenTheUserWorksOnNone) {
    document_ = Store().Document();

    EXPECT_EQ(ZELAnalysisDocUtils::GetCurrentDocument(document_), E_FAIL);
    const auto other = KORBaseUnknown_var::Adopt(new KORBaseUnknown);
    services_.Table().currentDocument = other.Get();
    EXPECT_EQ(ZELAnalysisDocUtils::GetCurrentDocument(document_), E_FAIL);

    EXPECT_EQ(document_, Store().Document()) << "untouched";
}

TEST_P(ZELAnalysisDocUtilsTest, FindsTheDocumentOfAFeature) {
    const auto feature = Make("ZELElasticLT");

    EXPECT_EQ(ZELAnalysisDocUtils::GetDocument(document_, KORBaseUnknown_var(feature)), S_OK);

    EXPECT_EQ(document_, Store().Document());
}

TEST_P(ZELAnalysisDocUtilsTest, FindsNoDocumentOfWhatIsInNone) {
    const auto feature = Make("ZELElasticLT");
    CloseStore();

    EXPECT_EQ(ZELAnalysisDocUtils::GetDocument(document_, nullptr), E_FAIL);
    EXPECT_EQ(ZELAnalysisDocUtils::GetDocument(document_, KORBaseUnknown_var::Adopt(new KORBaseUnknown)),
              E_FAIL);
    EXPECT_EQ(ZELAnalysisDocUtils::GetDocument(document_, KORBaseUnknown_var(feature)), E_FAIL);

    EXPECT_EQ(document_, nullptr);
}

TEST_P(ZELAnalysisDocUtilsTest, FindsTheSpecContainer) {
    EXPECT_EQ(ZELAnalysisDocUtils::GetSpecContainer(container_, Store().Document()), S_OK);

    EXPECT_EQ(container_, Store().Container().Get());
    container_->Release();
}

TEST_P(ZELAnalysisDocUtilsTest, FindsNoSpecContainerOfNoDocument) {
    EXPECT_EQ(ZELAnalysisDocUtils::GetSpecContainer(container_, nullptr), E_FAIL);
    EXPECT_EQ(container_, nullptr);
}

TEST_P(ZELAnalysisDocUtilsTest, LoadsACatalogThatThereIs) {
    EXPECT_EQ(ZELAnalysisDocUtils::LoadCatalog(kCatalog, Store().Document()), S_OK);
    EXPECT_EQ(ZELAnalysisDocUtils::LoadCatalog("Missing.KORfct", Store().Document()), E_FAIL);
    EXPECT_EQ(ZELAnalysisDocUtils::LoadCatalog(kCatalog, nullptr), E_FAIL);
}

TEST_P(ZELAnalysisDocUtilsTest, FindsFactoryAndModel) {
    const auto added = Store().AddAnalysisModel();

    EXPECT_EQ(ZELAnalysisDocUtils::GetFactory(factory_, Store().Document()), S_OK);
    EXPECT_EQ(ZELAnalysisDocUtils::GetAnalysisModel(model_, Store().Document()), S_OK);

    EXPECT_TRUE(factory_);
    EXPECT_EQ(KORISpecObject_var(model_), added);
}

TEST_P(ZELAnalysisDocUtilsTest, LeavesHandlesAloneWhenThereIsNoModelOrNoDocument) {
    Store().AddAnalysisModel();
    ZELAnalysisDocUtils::GetFactory(factory_, Store().Document());
    ZELAnalysisDocUtils::GetAnalysisModel(model_, Store().Document());
    const auto held = model_;

    EXPECT_EQ(ZELAnalysisDocUtils::GetFactory(factory_, nullptr), E_FAIL);
    EXPECT_EQ(ZELAnalysisDocUtils::GetAnalysisModel(model_, nullptr), E_FAIL);

    EXPECT_TRUE(factory_);
    EXPECT_EQ(model_, held);
}

TEST_P(ZELAnalysisDocUtilsTest, FindsNoModelWhereNoneWasMade) {
    EXPECT_EQ(ZELAnalysisDocUtils::GetAnalysisModel(model_, Store().Document()), E_FAIL);
    EXPECT_FALSE(model_);
}

ZEL_ON_BOTH_STORES(ZELAnalysisDocUtilsTest);

TEST(ZELAnalysisDocUtilsCalls, FailWhenTheDocumentGivesNothing) {
    ZELMapStore store;
    store.AddAnalysisModel();
    KORIContainer* container = nullptr;
    KORISamAnalysisModelFactory_var factory;
    KORISamAnalysisModel_var model;

    store.Calls().Inject(ZELFault::Refuse, 1, "GetFeatContainer");
    EXPECT_EQ(ZELAnalysisDocUtils::GetSpecContainer(container, store.Document()), E_FAIL);
    store.Calls().Inject(ZELFault::Refuse, 1, "GetFactory");
    EXPECT_EQ(ZELAnalysisDocUtils::GetFactory(factory, store.Document()), E_FAIL);
    store.Calls().RefuseInterface("Document", "KORIAnalysisDocument");
    EXPECT_EQ(ZELAnalysisDocUtils::LoadCatalog(kCatalog, store.Document()), E_FAIL);
    EXPECT_EQ(ZELAnalysisDocUtils::GetFactory(factory, store.Document()), E_FAIL);
    EXPECT_EQ(ZELAnalysisDocUtils::GetAnalysisModel(model, store.Document()), E_FAIL);

    EXPECT_EQ(container, nullptr);
    EXPECT_FALSE(factory);
    EXPECT_FALSE(model);
}
