// What a hyperelastic model asks of the platform, and what it leaves when a call fails.

#include <gmock/gmock.h>

#include "ZELMaterialModel/include/ZELIHyperelasticMaterialModel.h"
#include "tests/ZELMaterialModel/ZELRows.h"
#include "tests/ZELMaterialModel/src/ZELListedRows.h"
#include "tests/support/ZELFaultSweep.h"
#include "tests/support/ZELTestAccess.h"

using testing::ElementsAre;
using testing::Optional;

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
    const auto first = ZELListedRows(feature)[0];
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
            const auto listed = ZELListedRows(feature);
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
            const auto rows = ZELListedRows(feature);
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
