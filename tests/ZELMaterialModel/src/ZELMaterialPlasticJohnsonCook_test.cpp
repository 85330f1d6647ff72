// The Johnson-Cook side of the plastic behavior: its data lie in a feature of their own.

#include <gmock/gmock.h>

#include "ZELMaterialModel/include/ZELIJohnsonCookData.h"
#include "ZELMaterialModel/include/ZELMaterialPlastic.h"
#include "tests/ZELMaterialModel/ZELBareFeature.h"
#include "tests/ZELMaterialModel/ZELMaterialTree.h"
#include "tests/ZELMaterialModel/ZELRows.h"
#include "tests/support/ZELDiagnostics.h"
#include "tests/support/ZELMapStore.h"
#include "tests/support/ZELStores.h"
#include "tests/support/ZELTestAccess.h"
#include "tests/support/ZELTestServices.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ZELMaterialPlasticJohnsonCookTest : public ZELStoreTest {
protected:
    ZELMaterialPlasticJohnsonCookTest() {
        SetText(tree_.plastic, "PlasticHardeningType", "JohnsonCookHardening");
    }
    KORISpecObject_var Stored() { return Component(tree_.plastic, "JohnsonCookData_v2"); }
    std::vector<std::string> FatalTexts() {
        std::vector<std::string> texts;
        for (const auto& report : services_.FatalReports()) texts.emplace_back(report.text.View());
        return texts;
    }

    ZELMaterialTree tree_{Store()};
    ZELTestServices services_;
};

}  // namespace

TEST_P(ZELMaterialPlasticJohnsonCookTest, MakesTheFeatureWithDefaultsWhenTheMaterialIsFirstLookedAt) {
    const long features = Store().LiveFeatures();

    ZELMaterialPlastic plastic(tree_.material.Get());

    ASSERT_TRUE(Stored());
    EXPECT_EQ(Store().LiveFeatures(), features + 1);
    EXPECT_EQ(Stored()->GetType(), "ZELPlasticJohnsonCookLT");
    EXPECT_EQ(Stored()->GetName(), "");
    EXPECT_EQ(GetNumber(Stored(), "CoeffA"), 0.0);
    EXPECT_EQ(GetNumber(Stored(), "MeltingTemperature"), 273.15);
    EXPECT_EQ(GetNumber(Stored(), "TransitionTemperature"), 273.15);
    EXPECT_FALSE(Component(tree_.plastic, "JohnsonCookData")) << "the old attribute";
    EXPECT_EQ(ZELRowsOf(plastic.GetPlasticDataArray()), (ZELRows{{0.0, 0.0, 0.0, 0.0, 273.15, 273.15}}));
}

TEST_P(ZELMaterialPlasticJohnsonCookTest, MakesTheFeatureOnceAndLeavesItToContainerAndAttribute) {
    ZELMaterialPlastic plastic(tree_.material.Get());
    const KORISpecObject_var first = Stored();
    const long features = Store().LiveFeatures();

    plastic.GetPlasticDataArray();
    plastic.SetPlasticDataArray(ZELTableOf({{1.0, 2.0, 3.0, 4.0, 5.0, 6.0}}));

    EXPECT_EQ(Stored(), first);
    EXPECT_EQ(Store().LiveFeatures(), features);
    EXPECT_EQ(References(first), 3) << "container, attribute and this test";
}

TEST_P(ZELMaterialPlasticJohnsonCookTest, RoundTripsTheSixParameters) {
    ZELMaterialPlastic plastic(tree_.material.Get());

    EXPECT_EQ(plastic.SetPlasticDataArray(ZELTableOf({{350e6, 275e6, 0.36, 1.03, 1793.0, 298.0}})), S_OK);

    EXPECT_EQ(GetNumber(Stored(), "CoeffA"), 350e6);
    EXPECT_EQ(GetNumber(Stored(), "CoeffB"), 275e6);
    EXPECT_EQ(GetNumber(Stored(), "CoeffN"), 0.36);
    EXPECT_EQ(GetNumber(Stored(), "CoeffM"), 1.03);
    EXPECT_EQ(GetNumber(Stored(), "MeltingTemperature"), 1793.0);
    EXPECT_EQ(GetNumber(Stored(), "TransitionTemperature"), 298.0);
    EXPECT_EQ(ZELRowsOf(plastic.GetPlasticDataArray()), (ZELRows{{350e6, 275e6, 0.36, 1.03, 1793.0, 298.0}}));
    EXPECT_EQ(List(tree_.plastic, "StressData"), std::nullopt);
}

TEST_P(ZELMaterialPlasticJohnsonCookTest, MakesTheFeatureWhenItIsFirstWritten) {
    SetText(tree_.plastic, "PlasticHardeningType", "");
    ZELMaterialPlastic plastic(tree_.material.Get());
    ASSERT_FALSE(Stored());
    SetText(tree_.plastic, "PlasticHardeningType", "JohnsonCookHardening");

    EXPECT_EQ(plastic.SetPlasticDataArray(ZELTableOf({{1.0, 2.0, 3.0, 4.0, 5.0, 6.0}})), S_OK);

    EXPECT_EQ(GetNumber(Stored(), "CoeffA"), 1.0);
    EXPECT_EQ(GetNumber(Stored(), "TransitionTemperature"), 6.0);
}

TEST_P(ZELMaterialPlasticJohnsonCookTest, StoresTheFirstOfSeveralRows) {
    ZELMaterialPlastic plastic(tree_.material.Get());

    EXPECT_EQ(plastic.SetPlasticDataArray(
                  ZELTableOf({{1.0, 2.0, 3.0, 4.0, 5.0, 6.0}, {7.0, 8.0, 9.0, 10.0, 11.0, 12.0}})),
              S_OK);

    EXPECT_EQ(ZELRowsOf(plastic.GetPlasticDataArray()), (ZELRows{{1.0, 2.0, 3.0, 4.0, 5.0, 6.0}}));
}

TEST_P(ZELMaterialPlasticJohnsonCookTest, StoresZeroWhereTheRowIsTooNarrow) {
    ZELMaterialPlastic plastic(tree_.material.Get());

    EXPECT_EQ(plastic.SetPlasticDataArray(ZELTableOf({{1.0, 2.0}})), S_OK);

    EXPECT_EQ(ZELRowsOf(plastic.GetPlasticDataArray()), (ZELRows{{1.0, 2.0, 0.0, 0.0, 0.0, 0.0}}));
}

TEST_P(ZELMaterialPlasticJohnsonCookTest, RefusesAnEmptyTableBeforeItTouchesTheDocument) {
    SetText(tree_.plastic, "PlasticHardeningType", "");
    ZELMaterialPlastic plastic(tree_.material.Get());
    SetText(tree_.plastic, "PlasticHardeningType", "JohnsonCookHardening");
    const long features = Store().LiveFeatures();

    EXPECT_EQ(plastic.SetPlasticDataArray(ZELTableOf({})), E_FAIL);

    EXPECT_FALSE(Stored());
    EXPECT_EQ(Store().LiveFeatures(), features);
    EXPECT_THAT(FatalTexts(), IsEmpty());
}

TEST_P(ZELMaterialPlasticJohnsonCookTest, DoesNotReadWhatLiesUnderTheOldAttribute) {
    const auto old = Make("ZELPlasticJohnsonCookLT");
    SetNumber(old, "CoeffA", 5.0);
    Attach(tree_.plastic, "JohnsonCookData", old);

    ZELMaterialPlastic plastic(tree_.material.Get());

    EXPECT_EQ(ZELRowsOf(plastic.GetPlasticDataArray()), (ZELRows{{0.0, 0.0, 0.0, 0.0, 273.15, 273.15}}));
    EXPECT_EQ(Component(tree_.plastic, "JohnsonCookData"), old);
}

TEST_P(ZELMaterialPlasticJohnsonCookTest, ReportsAMissingAttributeAsABrokenInvariant) {
    Store().OmitAttribute("ZELPlasticLT", "JohnsonCookData_v2");
    const ZELMaterialTree tree(Store());
    SetText(tree.plastic, "PlasticHardeningType", "JohnsonCookHardening");
    const long features = Store().LiveFeatures();
    const ZELDiagnostics diagnostics;

    ZELMaterialPlastic plastic(tree.material.Get());
    EXPECT_EQ(plastic.SetPlasticDataArray(ZELTableOf({{1.0}})), E_FAIL);
    EXPECT_EQ(ZELTestAccess::GetPropertyPlasticityData(plastic), E_FAIL);

    EXPECT_THAT(FatalTexts(), ElementsAre("AssertionFailed:NULL != s_pJohnsonCookDataKey",
                                          "AssertionFailed:NULL != s_pJohnsonCookDataKey",
                                          "AssertionFailed:NULL != s_pJohnsonCookDataKey"));
    EXPECT_EQ(services_.FatalReports()[0].source, "ZELMaterialPlastic");
    EXPECT_THAT(diagnostics.Lines(), ElementsAre("Can't get plasticity data"));
    EXPECT_EQ(Store().LiveFeatures(), features);
}

TEST_P(ZELMaterialPlasticJohnsonCookTest, FailsOverAStoredObjectThatHoldsNoJohnsonCookData) {
    Attach(tree_.plastic, "JohnsonCookData_v2", tree_.density);
    const long features = Store().LiveFeatures();
    const ZELDiagnostics diagnostics;
    ZELMaterialPlastic plastic(tree_.material.Get());

    EXPECT_EQ(ZELTestAccess::GetPropertyPlasticityData(plastic), E_FAIL);
    EXPECT_EQ(plastic.GetPlasticDataArray().size(), 0);
    EXPECT_EQ(plastic.SetPlasticDataArray(ZELTableOf({{1.0}})), E_FAIL);

    EXPECT_EQ(Stored(), tree_.density);
    EXPECT_EQ(Store().LiveFeatures(), features);
    EXPECT_THAT(FatalTexts(), IsEmpty());
}

TEST_P(ZELMaterialPlasticJohnsonCookTest, FailsWhenTheCatalogHasNoSuchFeature) {
    Store().OmitType("ZELPlasticJohnsonCookLT");
    const ZELDiagnostics diagnostics;
    ZELMaterialPlastic plastic(tree_.material.Get());

    EXPECT_THAT(diagnostics.Lines(), ElementsAre("Can't get plasticity data"));
    EXPECT_EQ(plastic.SetPlasticDataArray(ZELTableOf({{1.0}})), E_FAIL);
    EXPECT_FALSE(Stored());
    EXPECT_EQ(ZELMaterialPlastic::CreateJohnsonCookDataObject(tree_.plastic.Get()), nullptr);
}

TEST_P(ZELMaterialPlasticJohnsonCookTest, CreatesALooseFeatureForTheCaller) {
    const long features = Store().LiveFeatures();

    const auto created =
        KORISpecObject_var::Adopt(ZELMaterialPlastic::CreateJohnsonCookDataObject(tree_.plastic.Get()));

    ASSERT_TRUE(created);
    EXPECT_EQ(Store().LiveFeatures(), features + 1);
    EXPECT_EQ(References(created), 2) << "the container and this test";
    EXPECT_FALSE(Stored());
    const ZELIJohnsonCookData_var data = created;
    double melting = 0.0;
    EXPECT_EQ(data->GetMeltingTemperature(melting), S_OK);
    EXPECT_EQ(melting, 273.15);
}

TEST_P(ZELMaterialPlasticJohnsonCookTest, ReportsCreationWithoutAFeatureOrOutsideAContainer) {
    EXPECT_EQ(ZELMaterialPlastic::CreateJohnsonCookDataObject(nullptr), nullptr);
    const auto bare = ZELMakeBareFeature();
    EXPECT_EQ(ZELMaterialPlastic::CreateJohnsonCookDataObject(bare.Get()), nullptr);

    EXPECT_THAT(FatalTexts(), ElementsAre("AssertionFailed:NULL_var != piSpecPlastic",
                                          "AssertionFailed:NULL_var != spContainer"));
}

ZEL_ON_BOTH_STORES(ZELMaterialPlasticJohnsonCookTest);

TEST(ZELMaterialPlasticJohnsonCookCalls, ReportAContainerThatIsNone) {
    ZELMapStore store;
    const ZELMaterialTree tree(store);
    const ZELTestServices services;
    store.Calls().RefuseInterface("Container", "KORIContainer");

    EXPECT_EQ(ZELMaterialPlastic::CreateJohnsonCookDataObject(tree.plastic.Get()), nullptr);

    ASSERT_EQ(services.FatalReports().size(), 1u);
    EXPECT_EQ(services.FatalReports()[0].text, "AssertionFailed:NULL != pContainer");
    EXPECT_EQ(services.FatalReports()[0].source, "ZELMaterialPlastic");
}
