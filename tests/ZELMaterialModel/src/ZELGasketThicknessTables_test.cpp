// The tables of pressure against closure: what is stored, what is reported, and what cannot be read.

#include <gmock/gmock.h>

#include <limits>

#include "ZELMaterialModel/include/ZELGasketThicknessBehavior.h"
#include "tests/ZELMaterialModel/ZELFullMaterialTree.h"
#include "tests/ZELMaterialModel/src/ZELGasketRows.h"
#include "tests/support/ZELDiagnostics.h"
#include "tests/support/ZELStores.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

namespace {

using Gasket = ZELGasketThicknessBehavior;

class ZELGasketThicknessTables : public ZELStoreTest {
protected:
    ZELFullMaterialTree tree_{Store()};
    ZELDiagnostics diagnostics_;
};

}  // namespace

TEST_P(ZELGasketThicknessTables, StoresEachTableColumnByColumn) {
    Gasket gasket(tree_.material.Get());

    gasket.SetGasketLoadingDataArray(ZELTableOf({{0.0, 0.0, 1.0}, {2.0, 3.0, 4.0}, {5.0, 6.0, 7.0}}));
    gasket.SetGasketUnLoadingEPDataArray(ZELTableOf({{1.0, 2.0, 3.0, 4.0}}));
    gasket.SetGasketUnLoadingDamageDataArray(ZELTableOf({{5.0, 6.0, 7.0, 8.0, 9.0}}));

    EXPECT_THAT(List(tree_.loading, "ZELGasketLoadingPressureData"), Optional(ElementsAre(0.0, 2.0, 5.0)));
    EXPECT_THAT(List(tree_.loading, "ZELGasketLoadingClosureData"), Optional(ElementsAre(0.0, 3.0, 6.0)));
    EXPECT_THAT(List(tree_.loading, "ZELGasketLoadingTemperatureData"), Optional(ElementsAre(1.0, 4.0, 7.0)));
    EXPECT_THAT(List(tree_.unloadingEP, "ZELGasketUnLoadingEPPressureData"), Optional(ElementsAre(1.0)));
    EXPECT_THAT(List(tree_.unloadingEP, "ZELGasketUnLoadingEPClosureData"), Optional(ElementsAre(2.0)));
    EXPECT_THAT(List(tree_.unloadingEP, "ZELGasketUnLoadingEPPlasticClosureData"),
                Optional(ElementsAre(3.0)));
    EXPECT_THAT(List(tree_.unloadingEP, "ZELGasketUnLoadingEPTemperatureData"), Optional(ElementsAre(4.0)));
    EXPECT_THAT(List(tree_.unloadingDamage, "ZELGasketUnLoadingDamagePressureData"),
                Optional(ElementsAre(5.0)));
    EXPECT_THAT(List(tree_.unloadingDamage, "ZELGasketUnLoadingDamageClosureData"),
                Optional(ElementsAre(6.0)));
    EXPECT_THAT(List(tree_.unloadingDamage, "ZELGasketUnLoadingDamageMaxClosureData"),
                Optional(ElementsAre(7.0)));
    EXPECT_THAT(List(tree_.unloadingDamage, "ZELGasketUnLoadingDamageTemperatureData"),
                Optional(ElementsAre(8.0)));
}

TEST_P(ZELGasketThicknessTables, StoresALoadingCurveOfTwoRowsAndReportsIt) {
    Gasket gasket(tree_.material.Get());

    EXPECT_EQ(gasket.SetGasketLoadingDataArray(ZELTableOf({{0.0, 0.0, 20.0}, {1.0, 2.0, 20.0}})), E_FAIL);

    ZELCftArrayZELCftArrayDouble table;
    EXPECT_EQ(gasket.GetGasketLoadingDataArray(table), S_OK);
    EXPECT_EQ(ZELRowsOf(table), (ZELRows{{0.0, 0.0, 20.0}, {1.0, 2.0, 20.0}}));
}

TEST_P(ZELGasketThicknessTables, StoresALoadingCurveThatDoesNotStartAtTheOriginAndReportsIt) {
    const double notANumber = std::numeric_limits<double>::quiet_NaN();
    Gasket gasket(tree_.material.Get());
    const auto setStart = [&gasket](double pressure, double closure) {
        return gasket.SetGasketLoadingDataArray(
            ZELTableOf({{pressure, closure, 20.0}, {1.0, 2.0, 20.0}, {3.0, 4.0, 20.0}}));
    };

    EXPECT_EQ(setStart(0.5, 0.0), E_FAIL);
    EXPECT_THAT(List(tree_.loading, "ZELGasketLoadingPressureData"), Optional(ElementsAre(0.5, 1.0, 3.0)));
    EXPECT_EQ(setStart(0.0, 0.5), E_FAIL);
    EXPECT_THAT(List(tree_.loading, "ZELGasketLoadingClosureData"), Optional(ElementsAre(0.5, 2.0, 4.0)));
    EXPECT_EQ(setStart(notANumber, 0.0), E_FAIL);
    EXPECT_EQ(setStart(0.0, notANumber), E_FAIL);
    EXPECT_EQ(setStart(1e-11, 0.0), E_FAIL);

    EXPECT_EQ(setStart(1e-13, -1e-13), S_OK) << "the same as 0";
    EXPECT_EQ(setStart(-0.0, -0.0), S_OK);
}

TEST_P(ZELGasketThicknessTables, StoresAnEmptyLoadingCurveAsEmptyListsAndReportsIt) {
    Gasket gasket(tree_.material.Get());

    EXPECT_EQ(gasket.SetGasketLoadingDataArray(ZELTableOf({})), E_FAIL);

    EXPECT_THAT(List(tree_.loading, "ZELGasketLoadingPressureData"), Optional(IsEmpty()));
    EXPECT_THAT(List(tree_.loading, "ZELGasketLoadingClosureData"), Optional(IsEmpty()));
    EXPECT_THAT(List(tree_.loading, "ZELGasketLoadingTemperatureData"), Optional(IsEmpty()));
    ZELCftArrayZELCftArrayDouble table;
    EXPECT_EQ(gasket.GetGasketLoadingDataArray(table), S_OK);
    EXPECT_EQ(table.size(), 0);
}

TEST_P(ZELGasketThicknessTables, ChecksNoUnloadingTable) {
    Gasket gasket(tree_.material.Get());

    EXPECT_EQ(gasket.SetGasketUnLoadingEPDataArray(ZELTableOf({{-5.0, 1.0, 2.0, 3.0}})), S_OK);
    EXPECT_EQ(gasket.SetGasketUnLoadingEPDataArray(ZELTableOf({})), S_OK);
    EXPECT_THAT(List(tree_.unloadingEP, "ZELGasketUnLoadingEPPressureData"), Optional(IsEmpty()));
    EXPECT_THAT(List(tree_.unloadingEP, "ZELGasketUnLoadingEPTemperatureData"), Optional(IsEmpty()));
    EXPECT_EQ(gasket.SetGasketUnLoadingDamageDataArray(ZELTableOf({{-5.0, 1.0, 2.0, 3.0}})), S_OK);
    EXPECT_EQ(gasket.SetGasketUnLoadingDamageDataArray(ZELTableOf({})), S_OK);
    EXPECT_THAT(List(tree_.unloadingDamage, "ZELGasketUnLoadingDamageMaxClosureData"), Optional(IsEmpty()));
}

TEST_P(ZELGasketThicknessTables, StoresZeroWhereARowIsTooNarrow) {
    Gasket gasket(tree_.material.Get());

    EXPECT_EQ(gasket.SetGasketLoadingDataArray(ZELTableOf({{}, {1.0}, {2.0, 3.0}})), S_OK);

    EXPECT_THAT(List(tree_.loading, "ZELGasketLoadingPressureData"), Optional(ElementsAre(0.0, 1.0, 2.0)));
    EXPECT_THAT(List(tree_.loading, "ZELGasketLoadingTemperatureData"), Optional(ElementsAre(0.0, 0.0, 0.0)));
}

TEST_P(ZELGasketThicknessTables, AppendsToTheCallersTable) {
    Gasket gasket(tree_.material.Get());
    gasket.SetGasketUnLoadingEPDataArray(ZELTableOf({{1.0, 2.0, 3.0, 4.0}}));
    auto table = ZELTableOf({{9.0}});

    EXPECT_EQ(gasket.GetGasketUnLoadingEPDataArray(table), S_OK);

    EXPECT_EQ(ZELRowsOf(table), (ZELRows{{9.0}, {1.0, 2.0, 3.0, 4.0}}));
}

TEST_P(ZELGasketThicknessTables, RefusesColumnsOfDifferentLengthAndLeavesTheCallersTable) {
    Gasket gasket(tree_.material.Get());
    gasket.SetGasketLoadingDataArray(ZELTableOf(kZELLoadingRows));
    gasket.SetGasketUnLoadingEPDataArray(ZELTableOf(kZELUnloadingRows));
    gasket.SetGasketUnLoadingDamageDataArray(ZELTableOf(kZELUnloadingRows));
    SetList(tree_.loading, "ZELGasketLoadingTemperatureData", {1.0});
    SetList(tree_.unloadingEP, "ZELGasketUnLoadingEPClosureData", {1.0, 2.0, 3.0});
    SetList(tree_.unloadingDamage, "ZELGasketUnLoadingDamagePressureData", {});
    auto table = ZELTableOf({{9.0}});

    EXPECT_EQ(gasket.GetGasketLoadingDataArray(table), E_FAIL);
    EXPECT_EQ(gasket.GetGasketUnLoadingEPDataArray(table), E_FAIL);
    EXPECT_EQ(gasket.GetGasketUnLoadingDamageDataArray(table), E_FAIL);

    EXPECT_EQ(ZELRowsOf(table), (ZELRows{{9.0}}));
    EXPECT_THAT(diagnostics_.Lines(), IsEmpty());
}

TEST_P(ZELGasketThicknessTables, CannotReadAColumnThatWasNeverValued) {
    Gasket gasket(tree_.material.Get());
    SetList(tree_.loading, "ZELGasketLoadingPressureData", {});
    SetList(tree_.loading, "ZELGasketLoadingClosureData", {});
    auto table = ZELTableOf({{9.0}});

    EXPECT_EQ(gasket.GetGasketLoadingDataArray(table), E_FAIL);
    EXPECT_EQ(gasket.GetGasketUnLoadingEPDataArray(table), E_FAIL);
    EXPECT_EQ(gasket.GetGasketUnLoadingDamageDataArray(table), E_FAIL);

    EXPECT_EQ(ZELRowsOf(table), (ZELRows{{9.0}}));
}

ZEL_ON_BOTH_STORES(ZELGasketThicknessTables);
