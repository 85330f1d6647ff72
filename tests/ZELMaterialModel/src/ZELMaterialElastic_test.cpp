#include "ZELMaterialModel/include/ZELMaterialElastic.h"

#include <gmock/gmock.h>

#include "framework/KORError.h"
#include "tests/ZELMaterialModel/ZELBareFeature.h"
#include "tests/ZELMaterialModel/ZELMaterialTree.h"
#include "tests/ZELMaterialModel/ZELRows.h"
#include "tests/support/ZELDiagnostics.h"
#include "tests/support/ZELStores.h"
#include "tests/support/ZELTestServices.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

namespace {

class ZELMaterialElasticTest : public ZELStoreTest {
protected:
    void StoreColumns(const std::vector<double>& young, const std::vector<double>& poisson,
                      const std::vector<double>& temperatures) {
        SetList(tree_.elastic, "YoungData", young);
        SetList(tree_.elastic, "PoissonData", poisson);
        SetList(tree_.elastic, "TemperatureData", temperatures);
    }
    void ExpectStored(const std::vector<double>& young, const std::vector<double>& poisson,
                      const std::vector<double>& temperatures) {
        EXPECT_THAT(List(tree_.elastic, "YoungData"), Optional(young));
        EXPECT_THAT(List(tree_.elastic, "PoissonData"), Optional(poisson));
        EXPECT_THAT(List(tree_.elastic, "TemperatureData"), Optional(temperatures));
    }

    /// An elastic feature that lacks one attribute, under the same material.
    void MakeElasticWithout(const char* attribute) {
        Store().OmitAttribute("ZELElasticLT", attribute);
        tree_.elastic = Make("ZELElasticLT");
        Attach(tree_.material, "ZELElastic", tree_.elastic);
    }

    static ZELCftArrayZELCftArrayDouble ThreeRows() {
        return ZELTableOf({{210e9, 0.3}, {200e9, 0.31}, {190e9, 0.32}});
    }

    ZELMaterialTree tree_{Store()};
    ZELTestServices services_;
};

}  // namespace

TEST_P(ZELMaterialElasticTest, ReportsAMissingMaterialAndStaysAsConstructed) {
    const ZELDiagnostics diagnostics;

    ZELMaterialElastic elastic(nullptr);

    EXPECT_THAT(diagnostics.Lines(), ElementsAre("No material SpecObject !"));
    EXPECT_EQ(elastic.GetElasticEnabled(), 0);
    EXPECT_EQ(elastic.GetTemperatureDependent(), 0);
    EXPECT_EQ(elastic.GetDataFile(), "");
    EXPECT_EQ(elastic.GetElasticDataArray().size(), 0);
    EXPECT_EQ(elastic.SetElasticEnabled(1), E_NOINTERFACE);
    EXPECT_EQ(elastic.SetElasticDataArray(ZELTableOf({{1.0, 2.0}})), E_NOINTERFACE);
}

TEST_P(ZELMaterialElasticTest, ReportsAMaterialWithoutAttributeAccess) {
    const auto bare = ZELMakeBareFeature();
    const ZELDiagnostics diagnostics;

    const ZELMaterialElastic elastic(bare.Get());

    EXPECT_THAT(diagnostics.Lines(), ElementsAre("Accessing ZELMaterial failed !"));
}

TEST_P(ZELMaterialElasticTest, ReportsAMissingFeatureAndReadsTheFlagOfTheMaterial) {
    const auto material = Make("ZELMaterialLT");
    SetFlag(material, "ZELElasticFlag", true);
    const ZELDiagnostics diagnostics;

    const ZELMaterialElastic elastic(material.Get());

    EXPECT_THAT(diagnostics.Lines(),
                ElementsAre("No ZELElastic object found !", "Can't get property temperature dependent",
                            "Failed to read elastic data", "Failed to read elastic data"));
    EXPECT_EQ(elastic.GetElasticEnabled(), 1);
}

TEST_P(ZELMaterialElasticTest, AnswersNoInterfaceWithoutAFeatureButCutsTheTableInMemory) {
    const auto material = Make("ZELMaterialLT");
    const ZELDiagnostics diagnostics;
    ZELMaterialElastic elastic(material.Get());
    elastic.SetElasticEnabled(1);

    EXPECT_EQ(elastic.SetElasticDataArray(ThreeRows()), E_NOINTERFACE);
    EXPECT_EQ(elastic.GetPropertyElasticDataArray(), E_NOINTERFACE);
    EXPECT_EQ(elastic.SetTemperatureDependent(1), E_NOINTERFACE);
    EXPECT_EQ(elastic.SetDataFile("steel.csv"), E_NOINTERFACE);
    EXPECT_EQ(elastic.GetPropertyDataFile(), E_NOINTERFACE);

    EXPECT_EQ(ZELRowsOf(elastic.GetElasticDataArray()), (ZELRows{{210e9, 0.3}}));
}

TEST_P(ZELMaterialElasticTest, ReportsEveryReadThatFailsInTheOrderOfReading) {
    Store().OmitAttribute("ZELMaterialLT", "ZELElasticFlag");
    for (const char* attribute : {"ElasticTemperatureDependent", "YoungData", "DataFile"}) {
        Store().OmitAttribute("ZELElasticLT", attribute);
    }
    const ZELMaterialTree bare(Store());
    const ZELDiagnostics diagnostics;

    const ZELMaterialElastic elastic(bare.material.Get());

    EXPECT_THAT(
        diagnostics.Lines(),
        ElementsAre("Failed to get property elastic enabled", "Can't get property temperature dependent",
                    "Failed to read elastic data", "Failed to read elastic data"));
}

TEST_P(ZELMaterialElasticTest, ReadsWhatIsStoredWhenItIsBuilt) {
    SetFlag(tree_.material, "ZELElasticFlag", true);
    SetFlag(tree_.elastic, "ElasticTemperatureDependent", true);
    SetText(tree_.elastic, "DataFile", "steel.csv");
    StoreColumns({210e9, 190e9}, {0.3, 0.31}, {293.0, 573.0});
    const ZELDiagnostics diagnostics;

    ZELMaterialElastic elastic(tree_.material.Get());

    EXPECT_THAT(diagnostics.Lines(), IsEmpty());
    EXPECT_EQ(elastic.GetElasticEnabled(), 1);
    EXPECT_EQ(elastic.GetTemperatureDependent(), 1);
    EXPECT_EQ(elastic.GetDataFile(), "steel.csv");
    EXPECT_EQ(ZELRowsOf(elastic.GetElasticDataArray()), (ZELRows{{210e9, 0.3, 293.0}, {190e9, 0.31, 573.0}}));
}

TEST_P(ZELMaterialElasticTest, WritesThroughWithItsSetters) {
    ZELMaterialElastic elastic(tree_.material.Get());

    EXPECT_EQ(elastic.SetElasticEnabled(1), S_OK);
    EXPECT_EQ(elastic.SetTemperatureDependent(1), S_OK);
    EXPECT_EQ(elastic.SetDataFile("steel.csv"), S_OK);

    EXPECT_TRUE(GetFlag(tree_.material, "ZELElasticFlag"));
    EXPECT_TRUE(GetFlag(tree_.elastic, "ElasticTemperatureDependent"));
    EXPECT_EQ(GetText(tree_.elastic, "DataFile"), "steel.csv");
}

TEST_P(ZELMaterialElasticTest, AnswersFromMemoryUntilItIsToldToReload) {
    ZELMaterialElastic elastic(tree_.material.Get());
    SetFlag(tree_.material, "ZELElasticFlag", true);
    StoreColumns({210e9}, {0.3}, {});

    EXPECT_EQ(elastic.GetElasticEnabled(), 0);
    EXPECT_EQ(elastic.GetElasticDataArray().size(), 0);

    EXPECT_EQ(elastic.GetPropertyElasticEnabled(), S_OK);
    EXPECT_EQ(elastic.GetPropertyElasticDataArray(), S_OK);
    EXPECT_EQ(elastic.GetElasticEnabled(), 1);
    EXPECT_EQ(ZELRowsOf(elastic.GetElasticDataArray()), (ZELRows{{210e9, 0.3}}));
}

TEST_P(ZELMaterialElasticTest, StoresItsMemoryAgainOverWhatOthersWrote) {
    ZELMaterialElastic elastic(tree_.material.Get());
    elastic.SetElasticEnabled(1);
    elastic.SetElasticDataArray(ZELTableOf({{210e9, 0.3}}));
    SetFlag(tree_.material, "ZELElasticFlag", false);
    StoreColumns({1.0}, {2.0}, {3.0});

    EXPECT_EQ(elastic.SetPropertyElasticEnabled(), S_OK);
    EXPECT_EQ(elastic.SetPropertyElasticDataArray(), S_OK);

    EXPECT_TRUE(GetFlag(tree_.material, "ZELElasticFlag"));
    ExpectStored({210e9}, {0.3}, {});
}

TEST_P(ZELMaterialElasticTest, StoresAllRowsWhenTemperatureDependent) {
    ZELMaterialElastic elastic(tree_.material.Get());
    elastic.SetElasticEnabled(1);
    elastic.SetTemperatureDependent(1);

    EXPECT_EQ(elastic.SetElasticDataArray(
                  ZELTableOf({{210e9, 0.3, 293.0}, {200e9, 0.31, 473.0}, {190e9, 0.32, 573.0}})),
              S_OK);

    EXPECT_EQ(elastic.GetElasticDataArray().size(), 3);
    ExpectStored({210e9, 200e9, 190e9}, {0.3, 0.31, 0.32}, {293.0, 473.0, 573.0});
}

TEST_P(ZELMaterialElasticTest, CutsATemperatureIndependentTableToItsFirstRowAndWarns) {
    ZELMaterialElastic elastic(tree_.material.Get());
    elastic.SetElasticEnabled(1);

    const HRESULT code = elastic.SetElasticDataArray(ThreeRows());

    EXPECT_TRUE(SUCCEEDED(code));
    EXPECT_NE(code, S_OK);
    EXPECT_EQ(ZELRowsOf(elastic.GetElasticDataArray()), (ZELRows{{210e9, 0.3}}));
    ExpectStored({210e9}, {0.3}, {});
}

TEST_P(ZELMaterialElasticTest, CarriesTheWarningInItsResultCode) {
    ZELMaterialElastic elastic(tree_.material.Get());
    elastic.SetElasticEnabled(1);

    const HRESULT code = elastic.SetElasticDataArray(ThreeRows());

    const KORErrorRecords::Entry* entry = KORError::Find(code);
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->code, code);
    EXPECT_EQ(entry->level, 2);
    EXPECT_EQ(entry->source, "ZELMaterialElastic");
    EXPECT_EQ(entry->line, 416);
    EXPECT_EQ(entry->error->MessageCatalog(), "ZELMaterialPropertiesElasticDlg");
    EXPECT_EQ(entry->error->MessageKey(), "Elastic.TempetarureIndepndent.Warning.Message");
    EXPECT_EQ(entry->error->References(), 1) << "the record holds it alone";
}

TEST_P(ZELMaterialElasticTest, WarnsAnewForEachCutTable) {
    ZELMaterialElastic elastic(tree_.material.Get());
    elastic.SetElasticEnabled(1);

    const HRESULT first = elastic.SetElasticDataArray(ThreeRows());
    const HRESULT second = elastic.SetElasticDataArray(ThreeRows());

    EXPECT_NE(first, second);
    ASSERT_NE(KORError::Find(first), nullptr);
    ASSERT_NE(KORError::Find(second), nullptr);
    EXPECT_NE(KORError::Find(first)->error, KORError::Find(second)->error);
    EXPECT_EQ(elastic.SetPropertyElasticDataArray(), S_OK) << "the table in memory is cut already";
}

TEST_P(ZELMaterialElasticTest, CutsWithoutAWarningWhileItIsDisabled) {
    ZELMaterialElastic elastic(tree_.material.Get());

    EXPECT_EQ(elastic.SetElasticDataArray(ThreeRows()), S_OK);

    EXPECT_EQ(ZELRowsOf(elastic.GetElasticDataArray()), (ZELRows{{210e9, 0.3}}));
    ExpectStored({210e9}, {0.3}, {});
}

TEST_P(ZELMaterialElasticTest, WarnsForTheEnabledFlagOneOnly) {
    ZELMaterialElastic elastic(tree_.material.Get());
    elastic.SetElasticEnabled(2);

    EXPECT_EQ(elastic.SetElasticDataArray(ThreeRows()), S_OK);

    EXPECT_EQ(elastic.GetElasticDataArray().size(), 1);
}

TEST_P(ZELMaterialElasticTest, TakesAnyOtherFlagByteThanZeroAsTemperatureDependent) {
    ZELMaterialElastic elastic(tree_.material.Get());
    elastic.SetElasticEnabled(1);
    elastic.SetTemperatureDependent(5);

    EXPECT_EQ(elastic.SetElasticDataArray(ZELTableOf({{210e9, 0.3, 293.0}, {200e9, 0.31, 473.0}})), S_OK);

    EXPECT_EQ(elastic.GetTemperatureDependent(), 5);
    ExpectStored({210e9, 200e9}, {0.3, 0.31}, {293.0, 473.0});
}

TEST_P(ZELMaterialElasticTest, DoesNotWarnForOneRowOrNone) {
    ZELMaterialElastic elastic(tree_.material.Get());
    elastic.SetElasticEnabled(1);

    EXPECT_EQ(elastic.SetElasticDataArray(ZELTableOf({{210e9, 0.3}})), S_OK);
    ExpectStored({210e9}, {0.3}, {});

    EXPECT_EQ(elastic.SetElasticDataArray(ZELTableOf({})), S_OK);
    ExpectStored({}, {}, {});
    EXPECT_EQ(elastic.GetElasticDataArray().size(), 0);
}

TEST_P(ZELMaterialElasticTest, KeepsTheFirstRowWholeInMemory) {
    ZELMaterialElastic elastic(tree_.material.Get());

    elastic.SetElasticDataArray(ZELTableOf({{210e9, 0.3, 293.0, 1.0}, {200e9, 0.31, 473.0, 2.0}}));

    EXPECT_EQ(ZELRowsOf(elastic.GetElasticDataArray()), (ZELRows{{210e9, 0.3, 293.0, 1.0}}));
    ExpectStored({210e9}, {0.3}, {});
}

TEST_P(ZELMaterialElasticTest, AnswersAFailedWriteWithItsFailureAndRecordsNoWarning) {
    MakeElasticWithout("PoissonData");
    const ZELDiagnostics diagnostics;
    ZELMaterialElastic elastic(tree_.material.Get());
    elastic.SetElasticEnabled(1);

    EXPECT_EQ(elastic.SetElasticDataArray(ThreeRows()), E_FAIL);

    EXPECT_EQ(ZELRowsOf(elastic.GetElasticDataArray()), (ZELRows{{210e9, 0.3}}));
    EXPECT_THAT(List(tree_.elastic, "YoungData"), Optional(ElementsAre(210e9)));
    EXPECT_EQ(List(tree_.elastic, "TemperatureData"), std::nullopt);
    EXPECT_EQ(services_.Table().errors.Find(0x00040000), nullptr) << "the first code there would be";
}

TEST_P(ZELMaterialElasticTest, ReportsAShorterPoissonColumnAndSucceeds) {
    ZELMaterialElastic elastic(tree_.material.Get());
    StoreColumns({1.0, 2.0, 3.0}, {0.1, 0.2}, {});
    const ZELDiagnostics diagnostics;

    EXPECT_EQ(elastic.GetPropertyElasticDataArray(), S_OK);

    EXPECT_THAT(diagnostics.Lines(), ElementsAre("The Elastic data is inconsistent !"));
    EXPECT_EQ(ZELRowsOf(elastic.GetElasticDataArray()), (ZELRows{{1.0, 0.1}, {2.0, 0.2}}));
}

TEST_P(ZELMaterialElasticTest, ReportsAShorterTemperatureColumnAndSucceeds) {
    ZELMaterialElastic elastic(tree_.material.Get());
    elastic.SetTemperatureDependent(1);
    StoreColumns({1.0, 2.0}, {0.1, 0.2}, {293.0});
    const ZELDiagnostics diagnostics;

    EXPECT_EQ(elastic.GetPropertyElasticDataArray(), S_OK);

    EXPECT_THAT(diagnostics.Lines(), ElementsAre("The Elastic data is inconsistent !"));
    EXPECT_EQ(ZELRowsOf(elastic.GetElasticDataArray()), (ZELRows{{1.0, 0.1, 293.0}}));
}

TEST_P(ZELMaterialElasticTest, IsBuiltOverInconsistentColumnsWithTheirReportOnly) {
    StoreColumns({1.0, 2.0}, {0.1}, {});
    const ZELDiagnostics diagnostics;

    ZELMaterialElastic elastic(tree_.material.Get());

    EXPECT_THAT(diagnostics.Lines(), ElementsAre("The Elastic data is inconsistent !"));
    EXPECT_EQ(elastic.GetElasticDataArray().size(), 1);
}

TEST_P(ZELMaterialElasticTest, ReadsAllRowsOfATemperatureIndependentTable) {
    StoreColumns({1.0, 2.0}, {0.1, 0.2}, {});

    ZELMaterialElastic elastic(tree_.material.Get());

    EXPECT_EQ(ZELRowsOf(elastic.GetElasticDataArray()), (ZELRows{{1.0, 0.1}, {2.0, 0.2}}));
}

TEST_P(ZELMaterialElasticTest, ReadsAnEmptyTableWhileAColumnWasNeverValued) {
    SetList(tree_.elastic, "YoungData", {1.0});
    ZELMaterialElastic elastic(tree_.material.Get());
    EXPECT_EQ(elastic.GetElasticDataArray().size(), 0) << "no Poisson's ratios";

    SetList(tree_.elastic, "PoissonData", {0.1});
    elastic.SetTemperatureDependent(1);

    EXPECT_EQ(elastic.GetPropertyElasticDataArray(), S_OK);
    EXPECT_EQ(elastic.GetElasticDataArray().size(), 0) << "no temperatures";
}

TEST_P(ZELMaterialElasticTest, HoldsMaterialAndFeatureForAsLongAsItLives) {
    const long material = References(tree_.material);
    const long feature = References(tree_.elastic);
    {
        ZELMaterialElastic elastic(tree_.material.Get());
        elastic.SetElasticEnabled(1);
        elastic.SetElasticDataArray(ThreeRows());

        EXPECT_EQ(References(tree_.material), material + 1);
        EXPECT_EQ(References(tree_.elastic), feature + 1);
    }

    EXPECT_EQ(References(tree_.material), material);
    EXPECT_EQ(References(tree_.elastic), feature);
}

ZEL_ON_BOTH_STORES(ZELMaterialElasticTest);
