// What a document and the module are like after an operation for which there was no memory: nothing of the
// operation is left once its step is, and what it held it has given back. A program of its own, since it
// replaces the allocation functions of its process.

#include <gtest/gtest.h>

#include <functional>
#include <iostream>
#include <new>

#include "ZELMaterialModel/include/ZELIHyperelasticMaterialModel.h"
#include "ZELMaterialModel/include/ZELILayup.h"
#include "ZELMaterialModel/include/ZELILayupLayer.h"
#include "ZELMaterialModel/include/ZELMaterial.h"
#include "framework/KORModule.h"
#include "interfaces/KORISamValidity.h"
#include "platform/document/KORTextDocument.h"
#include "tests/ZELMaterialModel/ZELFactory.h"
#include "tests/ZELMaterialModel/ZELFullMaterialTree.h"
#include "tests/ZELMaterialModel/ZELLayups.h"
#include "tests/ZELMaterialModel/ZELRows.h"
#include "tests/ZELMaterialModel/older/ZELOlderDocument.h"
#include "tests/support/ZELDiagnostics.h"
#include "tests/support/ZELFailingAllocation.h"
#include "tests/support/ZELPlatformStore.h"

namespace {

std::string TextOf(KORMemoryDocument& document) {
    KORFileError error;
    const auto text = KORTextDocument(document).Write(error);
    EXPECT_TRUE(text) << error.Text();
    return text.value_or("");
}

/// Runs an operation in a step that is left without commit, once for each allocation that it makes, failing
/// that one, and in the end without a failure. Answers how many failed: few where blocks that the framework
/// keeps serve, all of them under the sanitizers.
int FailEachAllocation(KORMemoryDocument& document, const std::function<void()>& operation) {
    const std::string before = TextOf(document);
    const std::size_t features = document.Features().Size();
    const long objects = KORModule::Of("ZELMaterialModel").LiveObjects();
    for (int n = 1;; ++n) {
        bool hit = false;
        {
            const KORStep step(document, "Edit");
            const ZELFailingAllocation fault(n);
            try {
                operation();
            } catch (const std::bad_alloc&) {
            }
            hit = fault.Hit();
        }
        std::cout.clear();  // a diagnostic line may be what there was no memory for
        EXPECT_EQ(TextOf(document), before) << "allocation " << n;
        EXPECT_EQ(document.Features().Size(), features) << "allocation " << n;
        EXPECT_EQ(KORModule::Of("ZELMaterialModel").LiveObjects(), objects) << "allocation " << n;
        if (!hit || testing::Test::HasFailure()) return n - 1;
    }
}

class ZELModuleMemory : public testing::Test {
protected:
    ZELModuleMemory() {
        EXPECT_EQ(store_.MemoryDocument().LoadCatalog(ZELCatalogFolder::kModuleCatalog), S_OK);
    }

    int FailEach(const std::function<void()>& operation) {
        return FailEachAllocation(store_.MemoryDocument(), operation);
    }

    /// Fails each allocation of an operation on one behavior of a material, which is held meanwhile.
    template <class Behavior>
    int FailEachOf(void (ZELIMaterial::*get)(ZELGenHeapObjectProxy<Behavior>& proxy),
                   const std::function<void(Behavior&)>& operation) {
        const ZELFullMaterialTree tree(store_);
        const ZELIMaterial_var material = tree.material;
        ZELGenHeapObjectProxy<Behavior> proxy;
        (material.Get()->*get)(proxy);
        return FailEach([&] { operation(*proxy.GetProxyObject()); });
    }

    const ZELDiagnostics diagnostics_;
    ZELPlatformStore store_;
    KORServicesScope services_{store_.Platform().Services()};
};

}  // namespace

TEST_F(ZELModuleMemory, LosesNothingWhileAnOldMaterialIsLookedAt) {
    const ZELMaterialTree tree(store_);

    EXPECT_GT(FailEach([&] { const ZELIMaterial_var material = tree.material; }), 0);
}

TEST_F(ZELModuleMemory, LosesNothingWhileTheFactoryMakesAMaterial) {
    struct Created {
        ~Created() {
            if (feature) feature->Release();
        }
        KORISpecObject* feature = nullptr;
    };
    const auto steel = store_.MakePlatformMaterial(store_.Container());
    const KORIMaterialFeature_var material = steel;
    const ZELIMaterialPropertiesFact_var factory = ZELFactory();

    const int failed = FailEach([&] {
        Created created;
        KORIMaterialFeature* wanted = material.Get();
        static_cast<void>(factory->CreateZELMaterialProperty(wanted, created.feature));
    });

    EXPECT_GT(failed, 0);
}

TEST_F(ZELModuleMemory, LosesNothingWhileTablesAreWrittenAndRead) {
    const unsigned char on = 1;
    const auto curve = ZELTableOf({{250e6, 0.0, 293.0}, {300e6, 0.1, 293.0}});

    EXPECT_GT(FailEachOf<ZELMaterialElastic>(
                  &ZELIMaterial::GetElasticProperties,
                  [&](ZELMaterialElastic& elastic) {
                      elastic.SetElasticEnabled(on);
                      elastic.SetElasticDataArray(ZELTableOf({{210e9, 0.3}, {190e9, 0.31}}));
                      elastic.SetDataFile("steel.csv");
                      elastic.InitElasticProperties();
                  }),
              0);
    EXPECT_GT(FailEachOf<ZELMaterialPlastic>(
                  &ZELIMaterial::GetPlasticProperties,
                  [&](ZELMaterialPlastic& plastic) {
                      plastic.SetHardeningType("IsotropicHardening");
                      plastic.SetPlasticDataArray(curve);
                      plastic.GetPlasticDataArray();
                      plastic.SetHardeningType("JohnsonCookHardening");
                      plastic.SetPlasticDataArray(ZELTableOf({{90e6, 292e6, 0.31, 1.09, 1356.0, 298.0}}));
                      plastic.GetPlasticDataArray();
                  }),
              0);
    EXPECT_GT(FailEachOf<ZELUserMaterial>(&ZELIMaterial::GetUserMaterialProperties,
                                          [&](ZELUserMaterial& user) {
                                              ZELCftArrayZELCftArrayDouble read;
                                              user.SetUserMaterialDataArray(curve);
                                              user.GetUserMaterialDataArray(read);
                                          }),
              0);
    EXPECT_GT(FailEachOf<ZELGasketThicknessBehavior>(&ZELIMaterial::GetGasketThicknessBehaviorProperties,
                                                     [&](ZELGasketThicknessBehavior& gasket) {
                                                         ZELCftArrayZELCftArrayDouble read;
                                                         gasket.SetGasketLoadingDataArray(curve);
                                                         gasket.SetGasketUnLoadingEPDataArray(curve);
                                                         gasket.GetGasketUnLoadingEPDataArray(read);
                                                     }),
              0);
}

TEST_F(ZELModuleMemory, LosesNothingWhileCoefficientsAreWrittenAndRead) {
    const ZELFullMaterialTree tree(store_);
    const auto rows = ZELTableOf({{1.0, 2.0, 3.0, 4.0, 5.0, 6.0}, {7.0}, {}});

    const int failed = FailEach([&] {
        const ZELIHyperelasticMaterialModel_var model = tree.model;
        if (!model) return;
        ZELCftArrayZELCftArrayDouble read;
        model->SetPropertyData(rows);
        model->GetPropertyData(read);
    });

    EXPECT_GT(failed, 0);
}

TEST_F(ZELModuleMemory, KeepsAHeldModelUsable) {
    const ZELFullMaterialTree tree(store_);
    const ZELIHyperelasticMaterialModel_var model = tree.model;
    const auto rows = ZELTableOf({{1.0, 2.0}, {3.0, 4.0}});
    for (int n = 1, hit = 1; hit != 0; ++n) {
        const KORStep step(store_.MemoryDocument(), "Edit");
        const ZELFailingAllocation fault(n);
        try {
            model->SetPropertyData(rows);
        } catch (const std::bad_alloc&) {
        }
        hit = fault.Hit() ? 1 : 0;
    }

    EXPECT_EQ(model->SetPropertyData(rows), S_OK);

    ZELCftArrayZELCftArrayDouble read;
    EXPECT_EQ(model->GetPropertyData(read), S_OK);
    EXPECT_EQ(ZELRowsOf(read), (ZELRows{{1.0, 2.0}, {3.0, 4.0}}));
    EXPECT_EQ(Components(tree.model, "HyperelasticMatModelData")->size(), 2u);
}

TEST_F(ZELModuleMemory, LosesNothingWhileALayupIsMadeAndChecked) {
    store_.AddAnalysisModel();
    const auto steel = store_.MakePlatformMaterial(store_.Container());
    const ZELFullMaterialTree tree(store_);
    EXPECT_EQ(
        KORIMaterialFeature_var(steel)->SetApplicativeFeature("ZELMaterialApplicative", tree.material.Get()),
        S_OK);

    const ZELIMaterialPropertiesFact_var factory = ZELFactory();

    const int failed = FailEach([&] {
        KORISpecObject_var layup;
        KORISpecObject_var layer;
        if (FAILED(factory->CreateLayup(layup, store_.Document())) ||
            FAILED(factory->CreateLayupLayer(layup, layer))) {
            return;
        }
        const ZELILayupLayer_var ply = layer;
        const ZELILayup_var stack = layup;
        const KORISamValidity_var validity = layup;
        if (!ply || !stack || !validity) return;
        ply->SetMaterial(steel);
        stack->SetLayers(ZELListOf({layer, layer}));
        std::uint32_t status = 0;
        validity->IsValid(layup, nullptr, status);
        stack->IsUnused();
        ZELIMaterial_var data;
        ply->GetMaterialData(data);
    });

    EXPECT_GT(failed, 0);
}

class ZELUpgradeMemory : public testing::TestWithParam<const char*> {
protected:
    const ZELDiagnostics diagnostics_;
    const ZELCatalogFolder catalogs_;
};

TEST_P(ZELUpgradeMemory, LosesNothing) {
    ZELOlderDocument older(catalogs_, ZELOlderText(GetParam()));

    EXPECT_GT(FailEachAllocation(older.Document(), [&] { older.Upgrade(); }), 0);
}

INSTANTIATE_TEST_SUITE_P(OfOlderDocuments, ZELUpgradeMemory,
                         testing::Values("all_old_data_together", "all_flags_together",
                                         "old_container_hyperelastic_on",
                                         "foreign_test_data_in_several_containers", "several_materials"));
