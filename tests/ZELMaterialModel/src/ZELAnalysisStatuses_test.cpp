// What the factory makes of statuses that the add-on's helpers never answer themselves.

#include <gmock/gmock.h>

#include "interfaces/KORIAlias.h"
#include "tests/ZELMaterialModel/ZELAnalysisServices.h"
#include "tests/ZELMaterialModel/ZELFactory.h"
#include "tests/ZELMaterialModel/ZELLayups.h"
#include "tests/support/ZELMapStore.h"
#include "tests/support/ZELTestAccess.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr HRESULT kOdd = -77;

class ZELAnalysisStatuses : public testing::Test {
protected:
    ZELMapStore store_;
    KORISpecObject_var model_ = store_.AddAnalysisModel();
    KORISpecObject_var set_ = ZELMakeEntity(store_, "ZELZelmarPropertySetLT");
    ZELAnalysisServices services_;
    KORISpecObject_var layup_;
    KORISamAnalysisModelFactory_var factory_;
};

}  // namespace

TEST_F(ZELAnalysisStatuses, ComeThroughTheModelLookUp) {
    for (HRESULT ZELAnalysisServices::*service :
         {&ZELAnalysisServices::loadCatalog, &ZELAnalysisServices::getFactory,
          &ZELAnalysisServices::getAnalysisModel}) {
        KORDocument* document = store_.Document();
        KORISpecObject* model = nullptr;
        services_.*service = kOdd;

        EXPECT_EQ(ZELTestAccess::GetFEModelInfo(document, model, factory_), kOdd);

        services_.*service = S_OK;
        EXPECT_EQ(model, nullptr);
    }
}

TEST_F(ZELAnalysisStatuses, OfTheCurrentDocumentBecomeAPlainFailure) {
    services_.getCurrentDocument = kOdd;
    KORDocument* document = nullptr;
    KORISpecObject* model = nullptr;

    EXPECT_EQ(ZELTestAccess::GetFEModelInfo(document, model, factory_), E_FAIL);
    EXPECT_EQ(ZELFactory()->CreateLayup(layup_, nullptr), E_FAIL);
}

TEST_F(ZELAnalysisStatuses, OfSuccessWithoutADocumentAreAFailure) {
    KORDocument* document = nullptr;
    KORISpecObject* model = nullptr;

    EXPECT_EQ(ZELTestAccess::GetFEModelInfo(document, model, factory_), E_FAIL);
    EXPECT_EQ(ZELFactory()->CreateLayup(layup_, nullptr), E_FAIL);
}

TEST_F(ZELAnalysisStatuses, OfSuccessWithoutAnAnalysisModelAreAFailure) {
    services_.givesAnalysisModel = false;
    KORDocument* document = store_.Document();
    KORISpecObject* model = nullptr;

    EXPECT_EQ(ZELTestAccess::GetFEModelInfo(document, model, factory_), E_FAIL);
    EXPECT_EQ(ZELFactory()->CreateLayup(layup_, store_.Document()), E_FAIL);

    EXPECT_EQ(model, nullptr);
    EXPECT_EQ(layup_, nullptr);
}

TEST_F(ZELAnalysisStatuses, BecomeAPlainFailureOfALayupsCreation) {
    for (HRESULT ZELAnalysisServices::*service :
         {&ZELAnalysisServices::loadCatalog, &ZELAnalysisServices::getFactory,
          &ZELAnalysisServices::getAnalysisModel}) {
        services_.*service = kOdd;

        EXPECT_EQ(ZELFactory()->CreateLayup(layup_, store_.Document()), E_FAIL);

        services_.*service = S_OK;
        EXPECT_EQ(layup_, nullptr);
    }
}

TEST_F(ZELAnalysisStatuses, OfSuccessWithoutAFactoryAreAFailureOfALayupsCreation) {
    services_.givesFactory = false;

    EXPECT_EQ(ZELFactory()->CreateLayup(layup_, store_.Document()), E_FAIL);

    EXPECT_EQ(layup_, nullptr);
    EXPECT_THAT(store_.Calls().Log("Scan"), IsEmpty());
}

TEST_F(ZELAnalysisStatuses, OfTheNamingComeThroughAndTheLayupStays) {
    services_.getNextUniqueName = kOdd;

    EXPECT_EQ(ZELFactory()->CreateLayup(layup_, store_.Document()), kOdd);

    ASSERT_TRUE(layup_);
    EXPECT_THAT(ZELChildrenOf(model_), ElementsAre(set_, layup_)) << "not in the set";
    EXPECT_THAT(ZELChildrenOf(set_), IsEmpty());
    EXPECT_THAT(store_.Calls().Log("SetAlias"), IsEmpty());
    EXPECT_THAT(store_.Calls().Log("SetDomain"), IsEmpty());
}

TEST_F(ZELAnalysisStatuses, OfTheNamingGiveTheLayupItsAlias) {
    EXPECT_EQ(ZELFactory()->CreateLayup(layup_, store_.Document()), S_OK);

    EXPECT_EQ(KORIAlias_var(layup_)->GetAlias(), "Unique");
    EXPECT_THAT(ZELChildrenOf(set_), ElementsAre(layup_));
}

TEST_F(ZELAnalysisStatuses, BecomeAPlainFailureOfALayersCreation) {
    const auto factory = ZELFactory();
    const long features = store_.LiveFeatures();
    KORISpecObject_var layer;

    services_.getDocument = kOdd;
    EXPECT_EQ(factory->CreateLayupLayer(set_, layer), E_FAIL);
    services_.getDocument = S_OK;
    services_.getSpecContainer = kOdd;
    EXPECT_EQ(factory->CreateLayupLayer(set_, layer), E_FAIL);
    services_.getSpecContainer = S_OK;
    services_.givesContainer = false;
    EXPECT_EQ(factory->CreateLayupLayer(set_, layer), E_FAIL);

    EXPECT_EQ(layer, nullptr);
    EXPECT_EQ(store_.LiveFeatures(), features);
}
