// A hyperelastic model that is held while the steps in which its rows were made are taken back.

#include <gmock/gmock.h>

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELFeatureCopy.h"
#include "ZELMaterialModel/include/ZELIHyperelasticMaterialModel.h"
#include "tests/ZELMaterialModel/ZELRows.h"
#include "tests/ZELMaterialModel/src/ZELListedRows.h"
#include "tests/support/ZELPlatformStore.h"
#include "tests/support/ZELTestAccess.h"

using testing::IsEmpty;

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
        takenAway = ZELListedRows(feature);
        if (commit) step.Commit();
    }

    /// What holds after new rows were set through the same handle.
    void ExpectRowsOfItsOwn(const ZELRows& rows) {
        const auto listed = ZELListedRows(feature);
        EXPECT_EQ(RowsOf(feature), rows);
        for (const KORISpecObject_var& row : listed) {
            EXPECT_EQ(ZELContainerOf(row), KORBaseUnknown_var(store.Container()));
        }
        EXPECT_THAT(RowsOf(Copy()), testing::ContainerEq(rows));
        EXPECT_THAT(ZELListedRows(Copy()), testing::Each(testing::Not(testing::AnyOfArray(listed))))
            << "a copy shares no row with the original";
    }
    static ZELRows RowsOf(const KORISpecObject_var& feature) {
        ZELRows rows;
        for (const auto& row : ZELListedRows(feature)) rows.push_back(*List(row, "MaterialModelRowData"));
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
    EXPECT_EQ(ZELListedRows(held.feature)[0], kept[0]);
    EXPECT_EQ(ZELListedRows(held.feature)[1], kept[1]);
    EXPECT_NE(ZELListedRows(held.feature)[2], held.takenAway[2]);
}
