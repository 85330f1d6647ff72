#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELEHyperelasticMaterialModel.h"

#include <gmock/gmock.h>

#include "ZELMaterialModel/include/ZELIHyperelasticMaterialModel.h"
#include "tests/ZELMaterialModel/ZELRows.h"
#include "tests/ZELMaterialModel/src/ZELListedRows.h"
#include "tests/support/ZELStores.h"
#include "tests/support/ZELTestAccess.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

namespace {

class ZELEHyperelasticMaterialModelTest : public ZELStoreTest {
protected:
    std::vector<KORISpecObject_var> Remembered() {
        return ZELTestAccess::RememberedRows(
            *KORGetImplementation<ZELEHyperelasticMaterialModel>(model_.Get()));
    }
    ZELRows Read() {
        ZELCftArrayZELCftArrayDouble table;
        EXPECT_EQ(model_->GetPropertyData(table), S_OK);
        return ZELRowsOf(table);
    }
    /// A model whose feature lacks one attribute.
    void MakeModelWithout(const char* attribute) {
        Store().OmitAttribute("ZELHyperelasticMaterialModelLT", attribute);
        feature_ = Make("ZELHyperelasticMaterialModelLT");
        model_ = feature_;
    }

    KORISpecObject_var feature_ = Make("ZELHyperelasticMaterialModelLT");
    ZELIHyperelasticMaterialModel_var model_ = feature_;
};

}  // namespace

TEST_P(ZELEHyperelasticMaterialModelTest, IsFoundOnModelFeaturesOnly) {
    EXPECT_TRUE(model_);
    EXPECT_FALSE(ZELIHyperelasticMaterialModel_var(Make("MRVHyperelasticityLT")));
}

TEST_P(ZELEHyperelasticMaterialModelTest, StoresAnyPotentialOrder) {
    for (const int order : {0, -1, 3, 2000000000}) {
        int read = -7;
        EXPECT_EQ(model_->SetStrainEnergyPotentialOrder(order), S_OK);
        EXPECT_EQ(GetWhole(feature_, "HyperelasticMatModelPotentialOrder"), order);
        EXPECT_EQ(model_->GetStrainEnergyPotentialOrder(read), S_OK);
        EXPECT_EQ(read, order);
    }
}

TEST_P(ZELEHyperelasticMaterialModelTest, StoresTemperatureFlagAndDataFile) {
    unsigned char dependent = 0;
    KORUnicodeString name;

    EXPECT_EQ(model_->SetPropertyTemperatureDependent(2), S_OK);
    EXPECT_EQ(model_->SetPropertyDataFile("rubber.csv"), S_OK);

    EXPECT_TRUE(GetFlag(feature_, "HyperelasticMatModelTempDependentFlag"));
    EXPECT_EQ(GetText(feature_, "HyperelasticMatModelDataFile"), "rubber.csv");
    EXPECT_EQ(model_->GetPropertyTemperatureDependent(dependent), S_OK);
    EXPECT_EQ(dependent, 1) << "the store keeps 0 or 1";
    EXPECT_EQ(model_->GetPropertyDataFile(name), S_OK);
    EXPECT_EQ(name, "rubber.csv");
}

TEST_P(ZELEHyperelasticMaterialModelTest, FailsForMissingAttributesAndLeavesTheArguments) {
    MakeModelWithout("HyperelasticMatModelPotentialOrder");
    MakeModelWithout("HyperelasticMatModelTempDependentFlag");
    MakeModelWithout("HyperelasticMatModelDataFile");
    MakeModelWithout("HyperelasticMatModelData");
    int order = 7;
    unsigned char dependent = 7;
    KORUnicodeString name("kept");
    auto table = ZELTableOf({{1.0}});
    const long features = Store().LiveFeatures();

    EXPECT_EQ(model_->GetStrainEnergyPotentialOrder(order), E_FAIL);
    EXPECT_EQ(model_->SetStrainEnergyPotentialOrder(1), E_FAIL);
    EXPECT_EQ(model_->GetPropertyTemperatureDependent(dependent), E_FAIL);
    EXPECT_EQ(model_->SetPropertyTemperatureDependent(1), E_FAIL);
    EXPECT_EQ(model_->GetPropertyDataFile(name), E_FAIL);
    EXPECT_EQ(model_->SetPropertyDataFile("rubber.csv"), E_FAIL);
    EXPECT_EQ(model_->GetPropertyData(table), E_FAIL);
    EXPECT_EQ(model_->SetPropertyData(ZELTableOf({{1.0}})), E_FAIL);

    EXPECT_EQ(order, 7);
    EXPECT_EQ(dependent, 7);
    EXPECT_EQ(name, "kept");
    EXPECT_EQ(ZELRowsOf(table), (ZELRows{{1.0}}));
    EXPECT_EQ(Store().LiveFeatures(), features) << "no row was made";
}

TEST_P(ZELEHyperelasticMaterialModelTest, RoundTripsRowsOfAnyLength) {
    const ZELRows rows = {{1.0, 2.0}, {3.0, 4.0, 5.0}, {6.0, 7.0, 8.0, 9.0, 10.0}, {}};

    EXPECT_EQ(model_->SetPropertyData(ZELTableOf(rows)), S_OK);

    EXPECT_EQ(Read(), rows);
    const auto listed = ZELListedRows(feature_);
    ASSERT_EQ(listed.size(), 4u);
    EXPECT_EQ(listed[0]->GetType(), "ZELMaterialModelRowDataLT");
    EXPECT_EQ(listed[0]->GetName(), "ZELMaterialModelRowDataLT");
    EXPECT_THAT(List(listed[1], "MaterialModelRowData"), Optional(ElementsAre(3.0, 4.0, 5.0)));
    EXPECT_THAT(List(listed[3], "MaterialModelRowData"), Optional(IsEmpty()));
}

TEST_P(ZELEHyperelasticMaterialModelTest, ReusesItsRowFeatures) {
    model_->SetPropertyData(ZELTableOf({{1.0}, {2.0}, {3.0}}));
    const auto first = ZELListedRows(feature_);
    const long features = Store().LiveFeatures();

    EXPECT_EQ(model_->SetPropertyData(ZELTableOf({{4.0}, {5.0}, {6.0}})), S_OK);

    EXPECT_EQ(ZELListedRows(feature_), first);
    EXPECT_EQ(Store().LiveFeatures(), features);
    EXPECT_EQ(Read(), (ZELRows{{4.0}, {5.0}, {6.0}}));
}

TEST_P(ZELEHyperelasticMaterialModelTest, KeepsTheFirstRowFeaturesAndTheLastOneWhenItShrinks) {
    model_->SetPropertyData(ZELTableOf({{1.0}, {2.0}, {3.0}, {4.0}, {5.0}}));
    const auto former = ZELListedRows(feature_);
    const long features = Store().LiveFeatures();

    EXPECT_EQ(model_->SetPropertyData(ZELTableOf({{6.0}, {7.0}, {8.0}})), S_OK);

    EXPECT_THAT(ZELListedRows(feature_), ElementsAre(former[0], former[1], former[4]));
    EXPECT_THAT(Remembered(), ElementsAre(former[0], former[1], former[4]));
    EXPECT_EQ(Read(), (ZELRows{{6.0}, {7.0}, {8.0}}));
    EXPECT_EQ(Store().LiveFeatures(), features) << "what is no longer listed stays";
    EXPECT_THAT(List(former[2], "MaterialModelRowData"), Optional(ElementsAre(3.0)));
}

TEST_P(ZELEHyperelasticMaterialModelTest, ShrinksByOneAndToOne) {
    model_->SetPropertyData(ZELTableOf({{1.0}, {2.0}, {3.0}}));
    const auto former = ZELListedRows(feature_);

    model_->SetPropertyData(ZELTableOf({{1.0}, {2.0}}));
    EXPECT_THAT(ZELListedRows(feature_), ElementsAre(former[0], former[2]));

    model_->SetPropertyData(ZELTableOf({{1.0}}));
    EXPECT_THAT(ZELListedRows(feature_), ElementsAre(former[2]));
}

TEST_P(ZELEHyperelasticMaterialModelTest, GrowsByNewRowFeatures) {
    model_->SetPropertyData(ZELTableOf({{1.0}}));
    const auto former = ZELListedRows(feature_);
    const long features = Store().LiveFeatures();

    EXPECT_EQ(model_->SetPropertyData(ZELTableOf({{2.0}, {3.0}, {4.0}})), S_OK);

    EXPECT_EQ(Store().LiveFeatures(), features + 2);
    EXPECT_EQ(ZELListedRows(feature_)[0], former[0]);
    EXPECT_EQ(Read(), (ZELRows{{2.0}, {3.0}, {4.0}}));
}

TEST_P(ZELEHyperelasticMaterialModelTest, EmptiesListAndMemoryForAnEmptyTable) {
    model_->SetPropertyData(ZELTableOf({{1.0}, {2.0}}));
    const auto former = ZELListedRows(feature_);

    EXPECT_EQ(model_->SetPropertyData(ZELTableOf({})), S_OK);

    EXPECT_THAT(Components(feature_, "HyperelasticMatModelData"), Optional(IsEmpty()));
    EXPECT_THAT(Remembered(), IsEmpty());
    EXPECT_EQ(Read(), ZELRows());
    model_->SetPropertyData(ZELTableOf({{1.0}}));
    EXPECT_NE(ZELListedRows(feature_)[0], former[0]);
}

TEST_P(ZELEHyperelasticMaterialModelTest, MakesNewRowFeaturesOnceItsMemoryIsGone) {
    model_->SetPropertyData(ZELTableOf({{1.0}}));
    const auto former = ZELListedRows(feature_);

    model_ = nullptr;
    model_ = feature_;
    EXPECT_THAT(Remembered(), IsEmpty());
    EXPECT_EQ(Read(), (ZELRows{{1.0}}));
    EXPECT_EQ(model_->SetPropertyData(ZELTableOf({{2.0}})), S_OK);

    EXPECT_NE(ZELListedRows(feature_)[0], former[0]);
    EXPECT_THAT(List(former[0], "MaterialModelRowData"), Optional(ElementsAre(1.0)));
}

TEST_P(ZELEHyperelasticMaterialModelTest, AppendsToTheCallersTable) {
    model_->SetPropertyData(ZELTableOf({{2.0}, {3.0}}));
    auto table = ZELTableOf({{1.0}});

    EXPECT_EQ(model_->GetPropertyData(table), S_OK);

    EXPECT_EQ(ZELRowsOf(table), (ZELRows{{1.0}, {2.0}, {3.0}}));
}

TEST_P(ZELEHyperelasticMaterialModelTest, CannotReadAListThatWasNeverValued) {
    auto table = ZELTableOf({{1.0}});

    EXPECT_EQ(model_->GetPropertyData(table), E_FAIL);

    EXPECT_EQ(table.size(), 1);
}

TEST_P(ZELEHyperelasticMaterialModelTest, SkipsARowWithoutValues) {
    model_->SetPropertyData(ZELTableOf({{1.0}}));
    AppendComponent(feature_, "HyperelasticMatModelData", Make("ZELMaterialModelRowDataLT"));
    const auto last = Make("ZELMaterialModelRowDataLT");
    SetList(last, "MaterialModelRowData", {3.0});
    AppendComponent(feature_, "HyperelasticMatModelData", last);

    EXPECT_EQ(Read(), (ZELRows{{1.0}, {3.0}}));
}

TEST_P(ZELEHyperelasticMaterialModelTest, KeepsTheRowsReadBeforeOneThatIsNoRow) {
    model_->SetPropertyData(ZELTableOf({{1.0}}));
    AppendComponent(feature_, "HyperelasticMatModelData", Make("ZELDensityLT"));
    ZELCftArrayZELCftArrayDouble table;

    EXPECT_EQ(model_->GetPropertyData(table), E_FAIL);
    EXPECT_EQ(ZELRowsOf(table), (ZELRows{{1.0}}));
}

TEST_P(ZELEHyperelasticMaterialModelTest, CannotReadAnEmptyEntry) {
    AppendComponent(feature_, "HyperelasticMatModelData", nullptr);
    ZELCftArrayZELCftArrayDouble table;

    EXPECT_EQ(model_->GetPropertyData(table), E_FAIL);
}

TEST_P(ZELEHyperelasticMaterialModelTest, RemembersAnEmptyEntryWhereNoRowCouldBeMade) {
    Store().OmitType("ZELMaterialModelRowDataLT");

    EXPECT_EQ(model_->SetPropertyData(ZELTableOf({{1.0}, {2.0}})), E_FAIL);

    EXPECT_THAT(Remembered(), ElementsAre(KORISpecObject_var(), KORISpecObject_var()));
    EXPECT_THAT(Components(feature_, "HyperelasticMatModelData"), Optional(IsEmpty()));
    EXPECT_EQ(model_->SetPropertyData(ZELTableOf({{1.0}})), E_FAIL) << "the empty entry is reused";
}

TEST_P(ZELEHyperelasticMaterialModelTest, ForgetsARowThatLiesInNoContainerAnyMore) {
    model_->SetPropertyData(ZELTableOf({{1.0}, {2.0}, {3.0}}));
    const auto former = ZELListedRows(feature_);
    Store().Remove(former[1]);

    EXPECT_EQ(model_->SetPropertyData(ZELTableOf({{4.0}, {5.0}, {6.0}})), S_OK);

    const auto listed = ZELListedRows(feature_);
    EXPECT_THAT(listed, ElementsAre(former[0], former[2], testing::Not(former[1])));
    EXPECT_EQ(Remembered(), listed);
    EXPECT_EQ(Read(), (ZELRows{{4.0}, {5.0}, {6.0}}));
    EXPECT_THAT(List(former[1], "MaterialModelRowData"), Optional(ElementsAre(2.0))) << "not written to";
}

TEST_P(ZELEHyperelasticMaterialModelTest, CountsOnlyRowsThatLieInAContainerWhenItShrinks) {
    model_->SetPropertyData(ZELTableOf({{1.0}, {2.0}, {3.0}, {4.0}, {5.0}}));
    const auto former = ZELListedRows(feature_);
    Store().Remove(former[4]);

    EXPECT_EQ(model_->SetPropertyData(ZELTableOf({{6.0}, {7.0}, {8.0}})), S_OK);

    EXPECT_THAT(ZELListedRows(feature_), ElementsAre(former[0], former[1], former[3]));
}

TEST_P(ZELEHyperelasticMaterialModelTest, CannotMakeRowsForAFeatureOutsideAContainer) {
    Store().Remove(feature_);
    const auto model = KORGetImplementation<ZELEHyperelasticMaterialModel>(model_.Get());
    KORISpecObject_var row;

    EXPECT_EQ(ZELTestAccess::CreateRow(*model, row), E_FAIL);
    EXPECT_FALSE(row);
    EXPECT_EQ(model_->SetPropertyData(ZELTableOf({{1.0}})), E_FAIL);
}

TEST_P(ZELEHyperelasticMaterialModelTest, MakesABareRowOnItsOwn) {
    const auto model = KORGetImplementation<ZELEHyperelasticMaterialModel>(model_.Get());
    KORISpecObject_var row;

    EXPECT_EQ(ZELTestAccess::CreateRow(*model, row), S_OK);

    ASSERT_TRUE(row);
    EXPECT_EQ(References(row), 2) << "the container and this test";
    EXPECT_EQ(List(row, "MaterialModelRowData"), std::nullopt);
    EXPECT_THAT(Remembered(), IsEmpty());
}

TEST_P(ZELEHyperelasticMaterialModelTest, GivesBackItsRowsAndItsFeature) {
    model_ = nullptr;
    const long references = References(feature_);
    model_ = feature_;
    model_->SetPropertyData(ZELTableOf({{1.0}}));
    const auto row = ZELListedRows(feature_)[0];
    EXPECT_EQ(References(row), 4) << "container, list, memory and this test";

    model_ = nullptr;

    EXPECT_EQ(References(row), 3);
    EXPECT_EQ(References(feature_), references);
    EXPECT_EQ(KORModule::Of("ZELMaterialModel").LiveObjects(), 0);
}

ZEL_ON_BOTH_STORES(ZELEHyperelasticMaterialModelTest);

TEST(ZELEHyperelasticMaterialModel, ExtendsNothingOutsideOfAQuery) {
    const auto model = KORBaseUnknown_var::Adopt(ZELEHyperelasticMaterialModel::CreateItself());
    ASSERT_TRUE(model);
    auto& loose = dynamic_cast<ZELEHyperelasticMaterialModel&>(*model);
    int order = 7;
    KORISpecObject_var row;

    EXPECT_EQ(loose.GetStrainEnergyPotentialOrder(order), E_FAIL);
    EXPECT_EQ(order, 7);
    EXPECT_EQ(loose.SetPropertyData(ZELTableOf({{1.0}})), E_FAIL);
    EXPECT_EQ(ZELTestAccess::CreateRow(loose, row), E_FAIL);
    EXPECT_STREQ(loose.IsA(), "ZELEHyperelasticMaterialModel");
}
