#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELEHyperelasticMaterialModel.h"

#include <gmock/gmock.h>

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELFeatureCopy.h"
#include "ZELMaterialModel/include/ZELIHyperelasticMaterialModel.h"
#include "tests/ZELMaterialModel/ZELRows.h"
#include "tests/support/ZELFaultSweep.h"
#include "tests/support/ZELPlatformStore.h"
#include "tests/support/ZELStores.h"
#include "tests/support/ZELTestAccess.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

namespace {

std::vector<KORISpecObject_var> ListedRows(const KORISpecObject_var& feature) {
    return Components(feature, "HyperelasticMatModelData").value_or(std::vector<KORISpecObject_var>());
}

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
    const auto listed = ListedRows(feature_);
    ASSERT_EQ(listed.size(), 4u);
    EXPECT_EQ(listed[0]->GetType(), "ZELMaterialModelRowDataLT");
    EXPECT_EQ(listed[0]->GetName(), "ZELMaterialModelRowDataLT");
    EXPECT_THAT(List(listed[1], "MaterialModelRowData"), Optional(ElementsAre(3.0, 4.0, 5.0)));
    EXPECT_THAT(List(listed[3], "MaterialModelRowData"), Optional(IsEmpty()));
}

TEST_P(ZELEHyperelasticMaterialModelTest, ReusesItsRowFeatures) {
    model_->SetPropertyData(ZELTableOf({{1.0}, {2.0}, {3.0}}));
    const auto first = ListedRows(feature_);
    const long features = Store().LiveFeatures();

    EXPECT_EQ(model_->SetPropertyData(ZELTableOf({{4.0}, {5.0}, {6.0}})), S_OK);

    EXPECT_EQ(ListedRows(feature_), first);
    EXPECT_EQ(Store().LiveFeatures(), features);
    EXPECT_EQ(Read(), (ZELRows{{4.0}, {5.0}, {6.0}}));
}

TEST_P(ZELEHyperelasticMaterialModelTest, KeepsTheFirstRowFeaturesAndTheLastOneWhenItShrinks) {
    model_->SetPropertyData(ZELTableOf({{1.0}, {2.0}, {3.0}, {4.0}, {5.0}}));
    const auto former = ListedRows(feature_);
    const long features = Store().LiveFeatures();

    EXPECT_EQ(model_->SetPropertyData(ZELTableOf({{6.0}, {7.0}, {8.0}})), S_OK);

    EXPECT_THAT(ListedRows(feature_), ElementsAre(former[0], former[1], former[4]));
    EXPECT_THAT(Remembered(), ElementsAre(former[0], former[1], former[4]));
    EXPECT_EQ(Read(), (ZELRows{{6.0}, {7.0}, {8.0}}));
    EXPECT_EQ(Store().LiveFeatures(), features) << "what is no longer listed stays";
    EXPECT_THAT(List(former[2], "MaterialModelRowData"), Optional(ElementsAre(3.0)));
}

TEST_P(ZELEHyperelasticMaterialModelTest, ShrinksByOneAndToOne) {
    model_->SetPropertyData(ZELTableOf({{1.0}, {2.0}, {3.0}}));
    const auto former = ListedRows(feature_);

    model_->SetPropertyData(ZELTableOf({{1.0}, {2.0}}));
    EXPECT_THAT(ListedRows(feature_), ElementsAre(former[0], former[2]));

    model_->SetPropertyData(ZELTableOf({{1.0}}));
    EXPECT_THAT(ListedRows(feature_), ElementsAre(former[2]));
}

TEST_P(ZELEHyperelasticMaterialModelTest, GrowsByNewRowFeatures) {
    model_->SetPropertyData(ZELTableOf({{1.0}}));
    const auto former = ListedRows(feature_);
    const long features = Store().LiveFeatures();

    EXPECT_EQ(model_->SetPropertyData(ZELTableOf({{2.0}, {3.0}, {4.0}})), S_OK);

    EXPECT_EQ(Store().LiveFeatures(), features + 2);
    EXPECT_EQ(ListedRows(feature_)[0], former[0]);
    EXPECT_EQ(Read(), (ZELRows{{2.0}, {3.0}, {4.0}}));
}

TEST_P(ZELEHyperelasticMaterialModelTest, EmptiesListAndMemoryForAnEmptyTable) {
    model_->SetPropertyData(ZELTableOf({{1.0}, {2.0}}));
    const auto former = ListedRows(feature_);

    EXPECT_EQ(model_->SetPropertyData(ZELTableOf({})), S_OK);

    EXPECT_THAT(Components(feature_, "HyperelasticMatModelData"), Optional(IsEmpty()));
    EXPECT_THAT(Remembered(), IsEmpty());
    EXPECT_EQ(Read(), ZELRows());
    model_->SetPropertyData(ZELTableOf({{1.0}}));
    EXPECT_NE(ListedRows(feature_)[0], former[0]);
}

TEST_P(ZELEHyperelasticMaterialModelTest, MakesNewRowFeaturesOnceItsMemoryIsGone) {
    model_->SetPropertyData(ZELTableOf({{1.0}}));
    const auto former = ListedRows(feature_);

    model_ = nullptr;
    model_ = feature_;
    EXPECT_THAT(Remembered(), IsEmpty());
    EXPECT_EQ(Read(), (ZELRows{{1.0}}));
    EXPECT_EQ(model_->SetPropertyData(ZELTableOf({{2.0}})), S_OK);

    EXPECT_NE(ListedRows(feature_)[0], former[0]);
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
    const auto former = ListedRows(feature_);
    Store().Remove(former[1]);

    EXPECT_EQ(model_->SetPropertyData(ZELTableOf({{4.0}, {5.0}, {6.0}})), S_OK);

    const auto listed = ListedRows(feature_);
    EXPECT_THAT(listed, ElementsAre(former[0], former[2], testing::Not(former[1])));
    EXPECT_EQ(Remembered(), listed);
    EXPECT_EQ(Read(), (ZELRows{{4.0}, {5.0}, {6.0}}));
    EXPECT_THAT(List(former[1], "MaterialModelRowData"), Optional(ElementsAre(2.0))) << "not written to";
}

TEST_P(ZELEHyperelasticMaterialModelTest, CountsOnlyRowsThatLieInAContainerWhenItShrinks) {
    model_->SetPropertyData(ZELTableOf({{1.0}, {2.0}, {3.0}, {4.0}, {5.0}}));
    const auto former = ListedRows(feature_);
    Store().Remove(former[4]);

    EXPECT_EQ(model_->SetPropertyData(ZELTableOf({{6.0}, {7.0}, {8.0}})), S_OK);

    EXPECT_THAT(ListedRows(feature_), ElementsAre(former[0], former[1], former[3]));
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
    const auto row = ListedRows(feature_)[0];
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

TEST(ZELEHyperelasticMaterialModelAfterUndo, IsMadeAnewWithNoMemoryOfRowsThatWereUndone) {
    ZELPlatformStore store;
    const auto feature = store.Make("ZELHyperelasticMaterialModelLT");
    const ZELIHyperelasticMaterialModel_var before = feature;
    {
        KORStep step(store.MemoryDocument(), "rows");
        before->SetPropertyData(ZELTableOf({{1.0}, {2.0}}));
        step.Commit();
    }

    ASSERT_TRUE(store.MemoryDocument().Undo());
    const ZELIHyperelasticMaterialModel_var after = feature;

    EXPECT_THAT(
        ZELTestAccess::RememberedRows(*KORGetImplementation<ZELEHyperelasticMaterialModel>(after.Get())),
        IsEmpty());
    EXPECT_EQ(Components(feature, "HyperelasticMatModelData"), std::nullopt);
}

namespace {

/// A model that is held while the step in which its rows were made is taken back.
struct HeldModel {
    ZELPlatformStore store;
    KORISpecObject_var feature = store.Make("ZELHyperelasticMaterialModelLT");
    ZELIHyperelasticMaterialModel_var model = feature;
    std::vector<KORISpecObject_var> takenAway;

    void SetInStep(const ZELRows& rows, bool commit) {
        KORStep step(store.MemoryDocument(), "rows");
        EXPECT_EQ(model->SetPropertyData(ZELTableOf(rows)), S_OK);
        takenAway = ListedRows(feature);
        if (commit) step.Commit();
    }

    /// What holds after new rows were set through the same handle.
    void ExpectRowsOfItsOwn(const ZELRows& rows) {
        const auto listed = ListedRows(feature);
        EXPECT_EQ(RowsOf(feature), rows);
        for (const KORISpecObject_var& row : listed) {
            EXPECT_EQ(ZELContainerOf(row), KORBaseUnknown_var(store.Container()));
        }
        EXPECT_THAT(RowsOf(Copy()), testing::ContainerEq(rows));
        EXPECT_THAT(ListedRows(Copy()), testing::Each(testing::Not(testing::AnyOfArray(listed))))
            << "a copy shares no row with the original";
    }
    static ZELRows RowsOf(const KORISpecObject_var& feature) {
        ZELRows rows;
        for (const auto& row : ListedRows(feature)) rows.push_back(*List(row, "MaterialModelRowData"));
        return rows;
    }
    KORISpecObject_var Copy() {
        const KORICutAndPastable_var container = store.Container();
        KORListValKORISpecObject_var wanted;
        wanted.Append(feature);
        return ZELCopyInto(container, container, wanted)[1];
    }
};

}  // namespace

TEST(ZELEHyperelasticMaterialModelAfterUndo, WritesToNewRowsThroughAHandleFromBefore) {
    HeldModel held;
    held.SetInStep({{1.0}, {2.0}}, true);
    ASSERT_TRUE(held.store.MemoryDocument().Undo());

    EXPECT_EQ(held.model->SetPropertyData(ZELTableOf({{3.0}, {4.0}, {5.0}})), S_OK);

    held.ExpectRowsOfItsOwn({{3.0}, {4.0}, {5.0}});
    EXPECT_THAT(List(held.takenAway[0], "MaterialModelRowData"), testing::Ne(std::vector{3.0}));
}

TEST(ZELEHyperelasticMaterialModelAfterUndo, WritesToNewRowsAfterAStepThatWasLeft) {
    HeldModel held;
    held.SetInStep({{1.0}, {2.0}}, false);

    EXPECT_EQ(held.model->SetPropertyData(ZELTableOf({{3.0}})), S_OK);

    held.ExpectRowsOfItsOwn({{3.0}});
}

TEST(ZELEHyperelasticMaterialModelAfterUndo, GoesOnWithTheRowsThatTheUndoneStepDidNotMake) {
    HeldModel held;
    held.SetInStep({{1.0}, {2.0}}, true);
    const auto kept = held.takenAway;
    held.SetInStep({{3.0}, {4.0}, {5.0}, {6.0}}, true);
    ASSERT_TRUE(held.store.MemoryDocument().Undo());

    EXPECT_EQ(held.model->SetPropertyData(ZELTableOf({{7.0}, {8.0}, {9.0}})), S_OK);

    held.ExpectRowsOfItsOwn({{7.0}, {8.0}, {9.0}});
    EXPECT_EQ(ListedRows(held.feature)[0], kept[0]);
    EXPECT_EQ(ListedRows(held.feature)[1], kept[1]);
    EXPECT_NE(ListedRows(held.feature)[2], held.takenAway[2]);
}

TEST(ZELEHyperelasticMaterialModelCalls, LetGoOfTheCatalogBeforeARowIsMade) {
    ZELMapStore store;
    const ZELIHyperelasticMaterialModel_var model = store.Make("ZELHyperelasticMaterialModelLT");

    model->SetPropertyData(ZELTableOf({{1.0}, {2.0}}));

    EXPECT_THAT(store.World()->openCatalogsAtInstantiations, ElementsAre(0, 0));
    EXPECT_THAT(store.Calls().Log("OpenCatalog"), testing::SizeIs(2));
}

TEST(ZELEHyperelasticMaterialModelCalls, KeepAnEmptyEntryWhereRowsAreForgotten) {
    ZELMapStore store;
    const auto feature = store.Make("ZELHyperelasticMaterialModelLT");
    const ZELIHyperelasticMaterialModel_var model = feature;
    const auto remembered = [&model] {
        return ZELTestAccess::RememberedRows(
            *KORGetImplementation<ZELEHyperelasticMaterialModel>(model.Get()));
    };
    EXPECT_EQ(model->SetPropertyData(ZELTableOf({{1.0}})), S_OK);
    const auto first = ListedRows(feature)[0];
    store.OmitType("ZELMaterialModelRowDataLT");
    EXPECT_EQ(model->SetPropertyData(ZELTableOf({{1.0}, {2.0}})), E_FAIL);
    ASSERT_THAT(remembered(), ElementsAre(first, KORISpecObject_var()));
    store.Remove(first);

    EXPECT_EQ(model->SetPropertyData(ZELTableOf({{3.0}})), E_FAIL) << "the empty entry is all there is";

    EXPECT_THAT(remembered(), ElementsAre(KORISpecObject_var()));
    EXPECT_THAT(List(first, "MaterialModelRowData"), Optional(ElementsAre(1.0)));
}

TEST(ZELEHyperelasticMaterialModelCalls, ResolveKeysOnEveryCallAndGiveThemBack) {
    ZELMapStore store;
    const ZELIHyperelasticMaterialModel_var model = store.Make("ZELHyperelasticMaterialModelLT");
    const long keys = store.KeyReferences();
    int order = 0;
    ZELCftArrayZELCftArrayDouble table;

    model->GetStrainEnergyPotentialOrder(order);
    model->GetStrainEnergyPotentialOrder(order);
    model->SetPropertyData(ZELTableOf({{1.0}, {2.0}}));
    model->GetPropertyData(table);

    EXPECT_THAT(store.Calls().Log("GetAttrKey"),
                ElementsAre("GetAttrKey ZELHyperelasticMaterialModelLT.HyperelasticMatModelPotentialOrder",
                            "GetAttrKey ZELHyperelasticMaterialModelLT.HyperelasticMatModelPotentialOrder",
                            "GetAttrKey ZELHyperelasticMaterialModelLT.HyperelasticMatModelData",
                            "GetAttrKey ZELMaterialModelRowDataLT.MaterialModelRowData",
                            "GetAttrKey ZELMaterialModelRowDataLT.MaterialModelRowData",
                            "GetAttrKey ZELHyperelasticMaterialModelLT.HyperelasticMatModelData",
                            "GetAttrKey ZELMaterialModelRowDataLT.MaterialModelRowData",
                            "GetAttrKey ZELMaterialModelRowDataLT.MaterialModelRowData"));
    EXPECT_EQ(store.KeyReferences(), keys);
}

TEST(ZELEHyperelasticMaterialModelCalls, EmptyTheListFirstThenWriteAndListRowByRow) {
    ZELMapStore store;
    const ZELIHyperelasticMaterialModel_var model = store.Make("ZELHyperelasticMaterialModelLT");
    model->SetPropertyData(ZELTableOf({{1.0}, {2.0}}));
    store.Calls().ClearLog();

    model->SetPropertyData(ZELTableOf({{3.0}, {4.0}}));

    std::vector<std::string> writes;
    for (const std::string& line : store.Calls().Log()) {
        for (const char* write : {"RemoveAllValues", "SetListOfDouble", "AppendComponent"}) {
            if (line.starts_with(write)) writes.push_back(line);
        }
    }
    EXPECT_THAT(writes, ElementsAre("RemoveAllValues ZELHyperelasticMaterialModelLT.HyperelasticMatModelData",
                                    "SetListOfDouble ZELMaterialModelRowDataLT.MaterialModelRowData [3]",
                                    "AppendComponent ZELHyperelasticMaterialModelLT.HyperelasticMatModelData "
                                    "ZELMaterialModelRowDataLT",
                                    "SetListOfDouble ZELMaterialModelRowDataLT.MaterialModelRowData [4]",
                                    "AppendComponent ZELHyperelasticMaterialModelLT.HyperelasticMatModelData "
                                    "ZELMaterialModelRowDataLT"));
}

TEST(ZELEHyperelasticMaterialModelFaults, LeaveTheRowsStoredSoFarWhicheverCallOfAWriteFails) {
    for (const ZELFault fault : {ZELFault::Refuse, ZELFault::SuccessWithNull, ZELFault::Throw}) {
        const int faults = ZELFaultSweep(fault, [](ZELFaultRun& run) {
            const auto feature = run.store.Make("ZELHyperelasticMaterialModelLT");
            const ZELIHyperelasticMaterialModel_var model = feature;
            const long references = References(feature);
            const long features = run.store.LiveFeatures();
            const long keys = run.store.KeyReferences();
            HRESULT status = S_OK;

            run.Act([&] { status = model->SetPropertyData(ZELTableOf({{1.0}, {2.0}})); });

            EXPECT_EQ(status, run.FaultHit() && !run.Threw() ? E_FAIL : S_OK);
            const auto listed = ListedRows(feature);
            EXPECT_LE(listed.size(), run.FaultHit() ? 1u : 2u);
            if (!listed.empty()) {
                EXPECT_THAT(List(listed[0], "MaterialModelRowData"), Optional(ElementsAre(1.0)));
            }
            EXPECT_LE(run.store.LiveFeatures(), features + 2);
            EXPECT_EQ(References(feature), references);
            EXPECT_EQ(run.store.KeyReferences(), keys);
        });
        EXPECT_GT(faults, 10);
    }
}

TEST(ZELEHyperelasticMaterialModelFaults, LeaveTheRowsReadSoFarWhicheverCallOfAReadFails) {
    for (const ZELFault fault : {ZELFault::Refuse, ZELFault::SuccessWithNull, ZELFault::Throw}) {
        ZELFaultSweep(fault, [](ZELFaultRun& run) {
            const auto feature = run.store.Make("ZELHyperelasticMaterialModelLT");
            const ZELIHyperelasticMaterialModel_var model = feature;
            model->SetPropertyData(ZELTableOf({{1.0}, {2.0}}));
            const auto rows = ListedRows(feature);
            const long references = References(feature);
            const long row = References(rows[0]);
            const long keys = run.store.KeyReferences();
            HRESULT status = S_OK;
            ZELCftArrayZELCftArrayDouble table;

            run.Act([&] { status = model->GetPropertyData(table); });

            const bool skipped = run.FailedCall().starts_with("GetListOfDouble");
            EXPECT_EQ(status, run.FaultHit() && !run.Threw() && !skipped ? E_FAIL : S_OK);
            EXPECT_LE(table.size(), run.FaultHit() ? 1 : 2);
            EXPECT_EQ(References(feature), references);
            EXPECT_EQ(References(rows[0]), row);
            EXPECT_EQ(run.store.KeyReferences(), keys);
        });
    }
}

TEST(ZELEHyperelasticMaterialModelFaults, AnswerFailureAndLeaveTheArgumentOfTheSimpleReads) {
    for (const ZELFault fault : {ZELFault::Refuse, ZELFault::SuccessWithNull, ZELFault::Throw}) {
        const int faults = ZELFaultSweep(fault, [](ZELFaultRun& run) {
            const auto feature = run.store.Make("ZELHyperelasticMaterialModelLT");
            const ZELIHyperelasticMaterialModel_var model = feature;
            model->SetStrainEnergyPotentialOrder(3);
            const long keys = run.store.KeyReferences();
            HRESULT status = S_OK;
            int order = 7;

            run.Act([&] { status = model->GetStrainEnergyPotentialOrder(order); });

            EXPECT_EQ(status, run.FaultHit() && !run.Threw() ? E_FAIL : S_OK);
            EXPECT_EQ(order, run.FaultHit() ? 7 : 3);
            EXPECT_EQ(run.store.KeyReferences(), keys);
        });
        EXPECT_EQ(faults, fault == ZELFault::Throw ? 3 : 2);
    }
}
