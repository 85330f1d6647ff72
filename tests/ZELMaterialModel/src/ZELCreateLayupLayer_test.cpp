#include <gmock/gmock.h>

#include "ZELMaterialModel/include/ZELILayupLayer.h"
#include "tests/ZELMaterialModel/ZELBareFeature.h"
#include "tests/ZELMaterialModel/ZELFactory.h"
#include "tests/support/ZELDiagnostics.h"
#include "tests/support/ZELFaultSweep.h"
#include "tests/support/ZELStores.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ZELCreateLayupLayer : public ZELStoreTest {
protected:
    KORISpecObject_var context_ = Make("ZELElasticLT");
    ZELIMaterialPropertiesFact_var factory_ = ZELFactory();
    KORISpecObject_var layer_;
};

}  // namespace

TEST_P(ZELCreateLayupLayer, MakesABareLayerInTheContextsDocument) {
    const ZELDiagnostics diagnostics;
    const long features = Store().LiveFeatures();

    EXPECT_EQ(factory_->CreateLayupLayer(context_, layer_), S_OK);

    ASSERT_TRUE(layer_);
    EXPECT_EQ(layer_->GetType(), "ZELLayupLayerLT");
    EXPECT_EQ(layer_->GetName(), "ZELLayupLayerLT");
    EXPECT_EQ(Component(layer_, "UserMaterial"), nullptr);
    EXPECT_EQ(GetNumber(layer_, "Thickness"), 0.0);
    EXPECT_EQ(GetNumber(layer_, "OrientationAngle"), 0.0);
    EXPECT_EQ(Store().LiveFeatures(), features + 1);
    EXPECT_EQ(References(layer_), 2) << "container and caller";
    EXPECT_TRUE(ZELILayupLayer_var(layer_));
    EXPECT_THAT(diagnostics.Lines(), IsEmpty());
}

TEST_P(ZELCreateLayupLayer, MakesAnotherOneWithTheSameNameEachTime) {
    KORISpecObject_var other;
    EXPECT_EQ(factory_->CreateLayupLayer(context_, layer_), S_OK);

    EXPECT_EQ(factory_->CreateLayupLayer(layer_, other), S_OK);

    EXPECT_NE(other, layer_);
    EXPECT_EQ(other->GetName(), "ZELLayupLayerLT");
}

TEST_P(ZELCreateLayupLayer, PutsTheLayerIntoTheContainerOfTheDocument) {
    EXPECT_EQ(factory_->CreateLayupLayer(context_, layer_), S_OK);

    const auto container = KORBaseUnknown_var::Adopt(layer_->GetFeatContainer());
    EXPECT_EQ(KORIContainer_var(container), Store().Container());
}

TEST_P(ZELCreateLayupLayer, FailsWithoutAContextAndMakesNothing) {
    const long features = Store().LiveFeatures();
    layer_ = context_;

    EXPECT_EQ(factory_->CreateLayupLayer(nullptr, layer_), E_FAIL);

    EXPECT_EQ(Store().LiveFeatures(), features);
    EXPECT_EQ(layer_, context_);
}

TEST_P(ZELCreateLayupLayer, FailsForAContextThatIsInNoDocument) {
    EXPECT_EQ(factory_->CreateLayupLayer(ZELMakeBareFeature(), layer_), E_FAIL);
    EXPECT_EQ(layer_, nullptr);
}

TEST_P(ZELCreateLayupLayer, FailsWhenTheDocumentIsClosed) {
    CloseStore();

    EXPECT_EQ(factory_->CreateLayupLayer(context_, layer_), E_FAIL);
    EXPECT_EQ(layer_, nullptr);
}

TEST_P(ZELCreateLayupLayer, FailsWhenTheCatalogLacksLayers) {
    Store().OmitType("ZELLayupLayerLT");

    EXPECT_EQ(factory_->CreateLayupLayer(context_, layer_), E_FAIL);
    EXPECT_EQ(layer_, nullptr);
}

ZEL_ON_BOTH_STORES(ZELCreateLayupLayer);

TEST(ZELCreateLayupLayerCalls, OpenTheModulesCatalogInTheSpecContainerAndInstantiateOnce) {
    ZELMapStore store;
    const auto context = store.Make("ZELElasticLT");
    const auto factory = ZELFactory();
    KORISpecObject_var layer;

    EXPECT_EQ(factory->CreateLayupLayer(context, layer), S_OK);

    EXPECT_THAT(store.Calls().Log("OpenCatalog"),
                ElementsAre("OpenCatalog ZELMaterialPropertiesCatalog.KORfct ZELMAR"));
    EXPECT_THAT(store.Calls().Log("RetrieveStartUp"),
                ElementsAre("RetrieveStartUp ZELLayupLayerLT KORISpecObject"));
    EXPECT_THAT(store.Calls().Log("Instantiate"),
                ElementsAre("Instantiate ZELLayupLayerLT(start-up) \"ZELLayupLayerLT\""));
    EXPECT_THAT(store.World()->openCatalogsAtInstantiations, ElementsAre(0));
}

TEST(ZELCreateLayupLayerFaults, MakeALayerOrFailWhicheverCallFails) {
    for (const ZELFault fault : {ZELFault::Refuse, ZELFault::SuccessWithNull, ZELFault::Throw}) {
        const int hits = ZELFaultSweep(fault, [](ZELFaultRun& run) {
            const auto context = run.store.Make("ZELElasticLT");
            const auto factory = ZELFactory();
            const long references = References(context);
            const auto container = KORBaseUnknown_var(run.store.Container());
            const long containers = container->References();
            HRESULT status = S_OK;
            KORISpecObject_var layer;

            run.Act([&] { status = factory->CreateLayupLayer(context, layer); });

            EXPECT_EQ(status, run.FaultHit() && !run.Threw() ? E_FAIL : S_OK);
            EXPECT_EQ(layer != nullptr, !run.FaultHit());
            EXPECT_EQ(run.store.LiveFeatures(), run.FaultHit() ? 1 : 2);
            EXPECT_EQ(References(context), references);
            EXPECT_EQ(container->References(), containers);
        });
        EXPECT_GT(hits, 5);
    }
}
