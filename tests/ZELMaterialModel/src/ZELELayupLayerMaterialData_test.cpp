#include <gmock/gmock.h>

#include "ZELMaterialModel/include/ZELILayupLayer.h"
#include "ZELMaterialModel/include/ZELMaterial.h"
#include "tests/ZELMaterialModel/ZELBareFeature.h"
#include "tests/ZELMaterialModel/ZELFullMaterialTree.h"
#include "tests/support/ZELDiagnostics.h"
#include "tests/support/ZELFaultSweep.h"
#include "tests/support/ZELMapMaterial.h"
#include "tests/support/ZELPlatformStore.h"
#include "tests/support/ZELStores.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

/// A layer of a platform material with analysis data.
struct Ply {
    explicit Ply(ZELTestStore& store, const std::shared_ptr<ZELMapWorld>& world)
        : tree(store),
          material(KORVar<ZELMapMaterial>::Adopt(new ZELMapMaterial(store.Container(), world))),
          feature(store.Make("ZELLayupLayerLT")),
          layer(feature) {
        const ZELUnrecorded unrecorded;
        EXPECT_EQ(material->SetApplicativeFeature("ZELMaterialApplicative", tree.material.Get()), S_OK);
        Attach(feature, "UserMaterial", KORISpecObject_var(static_cast<KORISpecObject*>(material.Get())));
    }

    ZELFullMaterialTree tree;
    KORVar<ZELMapMaterial> material;
    KORISpecObject_var feature;
    ZELILayupLayer_var layer;
};

class ZELELayupLayerMaterialData : public ZELStoreTest {
protected:
    std::shared_ptr<ZELMapWorld> world_ = std::make_shared<ZELMapWorld>();  ///< of the platform material
    Ply ply_{Store(), world_};
    ZELIMaterial_var data_;
};

}  // namespace

TEST_P(ZELELayupLayerMaterialData, IsTheAnalysisDataThatHangOnTheMaterial) {
    const ZELDiagnostics diagnostics;

    EXPECT_EQ(ply_.layer->GetMaterialData(data_), S_OK);

    EXPECT_EQ(data_, ZELIMaterial_var(ply_.tree.material));
    EXPECT_THAT(diagnostics.Lines(), IsEmpty());
}

TEST_P(ZELELayupLayerMaterialData, ReplacesWhatTheCallersHandleHeld) {
    const ZELFullMaterialTree other(Store());
    data_ = other.material;

    EXPECT_EQ(ply_.layer->GetMaterialData(data_), S_OK);

    EXPECT_EQ(data_, ZELIMaterial_var(ply_.tree.material));
}

TEST_P(ZELELayupLayerMaterialData, LooksTheFeatureUpTwice) {
    ply_.layer->GetMaterialData(data_);

    ZELMapWorld& world = *world_;
    EXPECT_THAT(world.calls.Log("FindApplicative"), ElementsAre("FindApplicative ZELMaterialApplicative",
                                                                "FindApplicative ZELMaterialApplicative"));
    EXPECT_THAT(world.calls.Log("GetSupport"), SizeIs(1));
}

TEST_P(ZELELayupLayerMaterialData, DropsTheFirstResultWhateverItWas) {
    world_->calls.Inject(ZELFault::Refuse, 1, "FindApplicative");

    EXPECT_EQ(ply_.layer->GetMaterialData(data_), S_OK);

    EXPECT_EQ(data_, ZELIMaterial_var(ply_.tree.material));
}

TEST_P(ZELELayupLayerMaterialData, FailsWhenTheSecondLookUpFindsNothing) {
    const ZELFullMaterialTree other(Store());
    data_ = other.material;
    world_->calls.Inject(ZELFault::Refuse, 2, "FindApplicative");

    EXPECT_EQ(ply_.layer->GetMaterialData(data_), E_FAIL);

    EXPECT_EQ(data_, ZELIMaterial_var(other.material)) << "the caller's handle is left alone";
}

TEST_P(ZELELayupLayerMaterialData, FailsWithoutAMaterial) {
    Attach(ply_.feature, "UserMaterial", nullptr);

    EXPECT_EQ(ply_.layer->GetMaterialData(data_), E_FAIL);
    EXPECT_EQ(data_, nullptr);
}

TEST_P(ZELELayupLayerMaterialData, FailsForAMaterialWithoutAnalysisData) {
    EXPECT_EQ(ply_.material->RemoveApplicativeFeature("ZELMaterialApplicative"), S_OK);

    EXPECT_EQ(ply_.layer->GetMaterialData(data_), E_FAIL);
    EXPECT_EQ(data_, nullptr);
}

TEST_P(ZELELayupLayerMaterialData, FailsWhenSomethingElseHangsThere) {
    EXPECT_EQ(ply_.material->SetApplicativeFeature("ZELMaterialApplicative", Make("ZELElasticLT").Get()),
              S_OK);

    EXPECT_EQ(ply_.layer->GetMaterialData(data_), E_FAIL);
    EXPECT_EQ(data_, nullptr);
}

TEST_P(ZELELayupLayerMaterialData, FailsForWhatIsNoMaterial) {
    Attach(ply_.feature, "UserMaterial", ZELMakeBareFeature());

    EXPECT_EQ(ply_.layer->GetMaterialData(data_), E_FAIL);
    EXPECT_EQ(data_, nullptr);
}

TEST_P(ZELELayupLayerMaterialData, FailsForAMaterialThatCannotBeAnalysed) {
    world_->calls.RefuseInterface("Material", "ZELIAnalysisMaterial");

    EXPECT_EQ(ply_.layer->GetMaterialData(data_), E_FAIL);

    EXPECT_THAT(world_->calls.Log("GetSupport"), IsEmpty());
}

TEST_P(ZELELayupLayerMaterialData, FailsForAMaterialThatCannotBeSupported) {
    world_->calls.RefuseInterface("Material", "KORIMaterialSupport");

    EXPECT_EQ(ply_.layer->GetMaterialData(data_), E_FAIL);
}

TEST_P(ZELELayupLayerMaterialData, FailsWithoutASupport) {
    world_->calls.Inject(ZELFault::Refuse, 1, "GetSupport");

    EXPECT_EQ(ply_.layer->GetMaterialData(data_), E_FAIL);
}

TEST_P(ZELELayupLayerMaterialData, FailsWhenTheSupportHoldsNoApplicativeData) {
    world_->calls.RefuseInterface("Material", "KORIApplicativeHolder");

    EXPECT_EQ(ply_.layer->GetMaterialData(data_), E_FAIL);
}

TEST_P(ZELELayupLayerMaterialData, LeavesNoReferenceBehind) {
    const long materials = ply_.material->References();
    const long trees = References(ply_.tree.material);

    EXPECT_EQ(ply_.layer->GetMaterialData(data_), S_OK);
    data_ = nullptr;

    EXPECT_EQ(ply_.material->References(), materials);
    EXPECT_EQ(References(ply_.tree.material), trees);
}

ZEL_ON_BOTH_STORES(ZELELayupLayerMaterialData);

TEST(ZELELayupLayerPlatformMaterial, GivesItsAnalysisData) {
    ZELPlatformStore store;
    const ZELFullMaterialTree tree(store);
    const auto material = store.MemoryDocument().NewPlatformFeature("KORMaterialLT", "Carbon");
    const KORISpecObject_var feature(material.Get());
    EXPECT_EQ(KORIMaterialFeature_var(material)->SetApplicativeFeature(ZELMaterial::GetApplicativeSpecName(),
                                                                       tree.material.Get()),
              S_OK);
    const ZELILayupLayer_var layer = store.Make("ZELLayupLayerLT");
    ZELIMaterial_var data;

    EXPECT_EQ(layer->SetMaterial(feature), S_OK);
    EXPECT_EQ(layer->GetMaterialData(data), S_OK);

    EXPECT_EQ(data, ZELIMaterial_var(tree.material));
}

TEST(ZELELayupLayerMaterialDataFaults, GiveTheDataOrFailWhicheverCallFails) {
    for (const ZELFault fault : {ZELFault::Refuse, ZELFault::SuccessWithNull, ZELFault::Throw}) {
        const int hits = ZELFaultSweep(fault, [](ZELFaultRun& run) {
            const ZELDiagnostics diagnostics;
            const Ply ply(run.store, run.store.World());
            const ZELIMaterial_var held = ply.tree.material;  // built before: its own calls are not swept
            const long materials = ply.material->References();
            HRESULT status = E_FAIL;
            ZELIMaterial_var data;

            run.Act([&] { status = ply.layer->GetMaterialData(data); });

            EXPECT_EQ(SUCCEEDED(status), data != nullptr);
            if (FAILED(status)) {
                EXPECT_EQ(status, E_FAIL);
            }
            if (data) {
                EXPECT_EQ(data, held);
            }
            EXPECT_EQ(ply.material->References(), materials);
        });
        EXPECT_GT(hits, 8);
    }
}
