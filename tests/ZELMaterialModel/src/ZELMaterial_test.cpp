#include "ZELMaterialModel/include/ZELMaterial.h"

#include <gmock/gmock.h>

#include "ZELMaterialModel/include/ZELIMaterial.h"
#include "tests/ZELMaterialModel/ZELMaterialTree.h"
#include "tests/ZELMaterialModel/ZELRows.h"
#include "tests/support/ZELAllocationFault.h"
#include "tests/support/ZELDiagnostics.h"
#include "tests/support/ZELPlatformStore.h"
#include "tests/support/ZELStores.h"

using testing::Contains;
using testing::ElementsAre;

namespace {

/// What the material hands out, into a fresh proxy.
template <class Behavior>
using HandOut = void (ZELIMaterial::*)(ZELGenHeapObjectProxy<Behavior>&);

template <class Behavior>
ZELGenHeapObjectProxy<Behavior> Ask(const ZELIMaterial_var& material, HandOut<Behavior> operation) {
    ZELGenHeapObjectProxy<Behavior> proxy;
    ((*material).*operation)(proxy);
    return proxy;
}

class ZELMaterialTest : public ZELStoreTest {
protected:
    ZELIMaterial_var Query() const { return tree_.material; }

    ZELMaterialTree tree_{Store()};
    ZELDiagnostics diagnostics_;
};

}  // namespace

TEST_P(ZELMaterialTest, IsReachedByQueryOnAMaterialFeature) {
    const ZELIMaterial_var material = Query();

    ASSERT_TRUE(material);
    EXPECT_EQ(KORBaseUnknown_var(material), KORBaseUnknown_var(tree_.material)) << "one component";
    EXPECT_EQ(KORISpecObject_var(material), tree_.material);
}

TEST_P(ZELMaterialTest, IsNotOnFeaturesOfOtherTypes) {
    EXPECT_FALSE(ZELIMaterial_var(tree_.density));
    EXPECT_FALSE(ZELIMaterial_var(tree_.elastic));
}

TEST_P(ZELMaterialTest, BuildsEachBehaviorOverItsOwnFeature) {
    SetList(tree_.elastic, "YoungData", {1.0});
    SetList(tree_.elastic, "PoissonData", {0.1});
    SetList(tree_.density, "DensityData", {2.0});
    SetList(tree_.thermalExpansion, "ThermalExpansionData", {3.0});
    SetList(tree_.conductivity, "ConductivityData", {4.0});
    SetList(tree_.specificHeat, "SpecificHeatData", {5.0});

    const ZELIMaterial_var material = Query();

    EXPECT_EQ(ZELRowsOf(Ask(material, &ZELIMaterial::GetElasticProperties)->GetElasticDataArray()),
              (ZELRows{{1.0, 0.1}}));
    EXPECT_EQ(ZELRowsOf(Ask(material, &ZELIMaterial::GetDensityProperties)->GetDensityDataArray()),
              (ZELRows{{2.0}}));
    EXPECT_EQ(
        ZELRowsOf(
            Ask(material, &ZELIMaterial::GetThermalExpansionProperties)->GetThermalExpansionDataArray()),
        (ZELRows{{3.0}}));
    EXPECT_EQ(ZELRowsOf(Ask(material, &ZELIMaterial::GetConductivityProperties)->GetConductivityDataArray()),
              (ZELRows{{4.0}}));
    EXPECT_EQ(ZELRowsOf(Ask(material, &ZELIMaterial::GetSpecificHeatProperties)->GetSpecificHeatDataArray()),
              (ZELRows{{5.0}}));
}

TEST_P(ZELMaterialTest, SharesABehaviorWithEachCaller) {
    const ZELIMaterial_var material = Query();

    const auto first = Ask(material, &ZELIMaterial::GetElasticProperties);
    const auto second = Ask(material, &ZELIMaterial::GetElasticProperties);

    EXPECT_EQ(first.GetProxyObject(), second.GetProxyObject());
    EXPECT_EQ(first.GetNumberOfReferences(), 3) << "the extension and two callers";
    first->SetElasticEnabled(1);
    EXPECT_EQ(second->GetElasticEnabled(), 1);
}

TEST_P(ZELMaterialTest, MakesACallersProxyLetGoOfWhatItHeld) {
    const ZELMaterialTree other(Store());
    const ZELIMaterial_var material = Query();
    const ZELIMaterial_var otherMaterial = other.material;
    auto proxy = Ask(otherMaterial, &ZELIMaterial::GetDensityProperties);
    const auto kept = proxy;
    EXPECT_EQ(kept.GetNumberOfReferences(), 3);

    material->GetDensityProperties(proxy);

    EXPECT_EQ(kept.GetNumberOfReferences(), 2);
    EXPECT_NE(proxy.GetProxyObject(), kept.GetProxyObject());
    EXPECT_EQ(proxy.GetNumberOfReferences(), 2);
}

TEST_P(ZELMaterialTest, DeletesWhatACallersProxyWasTheLastToHold) {
    const ZELIMaterial_var material = Query();
    const auto other = Make("ZELMaterialLT");
    const long references = References(other);
    ZELGenHeapObjectProxy<ZELMaterialDensity> proxy(new ZELMaterialDensity(other.Get()));
    EXPECT_EQ(References(other), references + 1);

    material->GetDensityProperties(proxy);

    EXPECT_EQ(References(other), references);
}

TEST_P(ZELMaterialTest, IsOneObjectPerFeatureWhileAnyoneHoldsIt) {
    const ZELMaterialTree other(Store());
    const ZELIMaterial_var first = Query();
    const ZELIMaterial_var second = Query();

    EXPECT_EQ(KORGetImplementation<ZELMaterial>(first.Get()),
              KORGetImplementation<ZELMaterial>(second.Get()));
    EXPECT_NE(KORGetImplementation<ZELMaterial>(first.Get()),
              KORGetImplementation<ZELMaterial>(ZELIMaterial_var(other.material).Get()));
}

TEST_P(ZELMaterialTest, IsMadeAnewFromTheStoreAfterItsLastRelease) {
    ZELIMaterial_var material = Query();
    Ask(material, &ZELIMaterial::GetDensityProperties)->SetDensityDataArray(ZELTableOf({{7850.0}}));
    SetList(tree_.density, "DensityData", {1.0});

    material = nullptr;
    material = Query();

    EXPECT_EQ(ZELRowsOf(Ask(material, &ZELIMaterial::GetDensityProperties)->GetDensityDataArray()),
              (ZELRows{{1.0}}));
}

TEST_P(ZELMaterialTest, KeepsItsFeatureAliveAndReleasesItExactlyAsOftenAsItTookIt) {
    Query();  // has the upgrade done
    const long material = References(tree_.material);
    const long density = References(tree_.density);
    {
        const ZELIMaterial_var extension = Query();
        const auto proxy = Ask(extension, &ZELIMaterial::GetDensityProperties);

        EXPECT_GT(References(tree_.material), material);
        EXPECT_EQ(References(tree_.density), density + 1);
    }

    EXPECT_EQ(References(tree_.material), material);
    EXPECT_EQ(References(tree_.density), density);
    EXPECT_EQ(KORModule::Of("ZELMaterialModel").LiveObjects(), 0);
}

TEST_P(ZELMaterialTest, LeavesItsBehaviorsToTheCallersThatHoldThem) {
    Query();  // has the upgrade done
    const long references = References(tree_.material);
    auto density = Ask(Query(), &ZELIMaterial::GetDensityProperties);
    auto elastic = Ask(Query(), &ZELIMaterial::GetElasticProperties);

    EXPECT_EQ(density.GetNumberOfReferences(), 1);
    EXPECT_EQ(References(tree_.material), references + 2);
    EXPECT_EQ(density->SetDensityDataArray(ZELTableOf({{7850.0}})), S_OK);
    EXPECT_EQ(elastic->SetElasticEnabled(1), S_OK);
    EXPECT_THAT(List(tree_.density, "DensityData"), testing::Optional(ElementsAre(7850.0)));
    EXPECT_TRUE(GetFlag(tree_.material, "ZELElasticFlag"));
    density.killObject();
    elastic.killObject();

    EXPECT_EQ(References(tree_.material), references);
}

TEST_P(ZELMaterialTest, LeavesBehaviorsUsableAfterTheDocumentIsClosed) {
    const auto density = Ask(Query(), &ZELIMaterial::GetDensityProperties);
    density->SetDensityDataArray(ZELTableOf({{7850.0}}));
    tree_.material = nullptr;
    tree_.density = nullptr;

    CloseStore();

    EXPECT_EQ(ZELRowsOf(density->GetDensityDataArray()), (ZELRows{{7850.0}}));
    EXPECT_TRUE(SUCCEEDED(density->GetPropertyDensityDataArray()));
    EXPECT_EQ(density->GetDensityDataArray().size(), 0) << "nothing is valued any more";
}

TEST_P(ZELMaterialTest, WritesAndReadsTheHeatGenerationOfTheMaterial) {
    const auto material = KORGetImplementation<ZELMaterial>(Query().Get());
    ASSERT_TRUE(material);
    bool enabled = true;

    EXPECT_EQ(material->GetHeatGenerationEnabled(enabled), S_OK);
    EXPECT_FALSE(enabled);
    EXPECT_EQ(material->SetHeatGenerationEnabled(true), S_OK);
    EXPECT_TRUE(GetFlag(tree_.material, "ZELHeatGenerationFlag"));
    EXPECT_EQ(material->GetHeatGenerationEnabled(enabled), S_OK);
    EXPECT_TRUE(enabled);
    EXPECT_EQ(material->SetHeatGenerationEnabled(false), S_OK);
    EXPECT_FALSE(GetFlag(tree_.material, "ZELHeatGenerationFlag"));
}

TEST_P(ZELMaterialTest, FailsHeatGenerationThatTheMaterialLacksAndLeavesTheAnswer) {
    Store().OmitAttribute("ZELMaterialLT", "ZELHeatGenerationFlag");
    const ZELMaterialTree bare(Store());
    const auto material = KORGetImplementation<ZELMaterial>(ZELIMaterial_var(bare.material).Get());
    bool enabled = true;

    EXPECT_EQ(material->GetHeatGenerationEnabled(enabled), E_FAIL);
    EXPECT_TRUE(enabled);
    EXPECT_EQ(material->SetHeatGenerationEnabled(true), E_FAIL);
}

TEST_P(ZELMaterialTest, ReportsABehaviorThatCannotBeAllocatedAndBuildsTheOthers) {
    struct Failing {
        const char* text;
        int empty;  ///< which of the five proxies below
    };
    const std::vector<Failing> behaviors = {{"Construction of ZELElastic failed !", 0},
                                            {"Construction of ZELDensity failed !", 1},
                                            {"Construction of ZELThermalExpansion failed !", 2},
                                            {"Construction of ZELConductivity failed !", 3},
                                            {"Construction of ZELSpecificHeat failed !", 4}};
    for (const auto& [text, empty] : behaviors) {
        bool found = false;
        for (int n = 1; n <= 12 && !found; ++n) {
            const ZELMaterialTree tree(Store());
            const ZELDiagnostics diagnostics;
            const ZELAllocationFault fault(n);
            const ZELIMaterial_var material = tree.material;
            found = testing::Value(diagnostics.Lines(), Contains(text));
            if (!found) continue;

            const std::vector<bool> built = {
                Ask(material, &ZELIMaterial::GetElasticProperties).IsObject(),
                Ask(material, &ZELIMaterial::GetDensityProperties).IsObject(),
                Ask(material, &ZELIMaterial::GetThermalExpansionProperties).IsObject(),
                Ask(material, &ZELIMaterial::GetConductivityProperties).IsObject(),
                Ask(material, &ZELIMaterial::GetSpecificHeatProperties).IsObject()};
            std::vector<bool> expected(5, true);
            expected[static_cast<std::size_t>(empty)] = false;
            EXPECT_EQ(built, expected) << text;
            EXPECT_THAT(diagnostics.Lines(), Contains(text).Times(1));
        }
        EXPECT_TRUE(found) << text;
    }
}

TEST_P(ZELMaterialTest, IsNotFoundWhenItsBindingCannotBeAllocated) {
    const long references = References(tree_.material);
    {
        const ZELAllocationFault fault(1);

        EXPECT_FALSE(Query());

        EXPECT_TRUE(fault.Hit());
    }

    EXPECT_EQ(References(tree_.material), references);
    EXPECT_TRUE(Query()) << "the next query succeeds";
}

ZEL_ON_BOTH_STORES(ZELMaterialTest);

TEST(ZELMaterialAfterUndo, IsMadeAnewFromTheStoreAsItIsThen) {
    ZELPlatformStore store;
    const ZELMaterialTree tree(store);
    const ZELDiagnostics diagnostics;
    const ZELIMaterial_var before = tree.material;
    {
        KORStep step(store.MemoryDocument(), "density");
        Ask(before, &ZELIMaterial::GetDensityProperties)->SetDensityDataArray(ZELTableOf({{7850.0}}));
        step.Commit();
    }

    ASSERT_TRUE(store.MemoryDocument().Undo());
    const ZELIMaterial_var after = tree.material;

    EXPECT_NE(KORGetImplementation<ZELMaterial>(before.Get()),
              KORGetImplementation<ZELMaterial>(after.Get()));
    EXPECT_EQ(Ask(after, &ZELIMaterial::GetDensityProperties)->GetDensityDataArray().size(), 0);
    const auto old = Ask(before, &ZELIMaterial::GetDensityProperties);
    EXPECT_EQ(ZELRowsOf(old->GetDensityDataArray()), (ZELRows{{7850.0}})) << "its memory, until it reloads";
    EXPECT_EQ(old->GetPropertyDensityDataArray(), S_OK);
    EXPECT_EQ(old->GetDensityDataArray().size(), 0);
}
