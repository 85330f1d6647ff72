#include "ZELMaterialModel/include/ZELMaterialPlastic.h"

#include <gmock/gmock.h>

#include <limits>

#include "tests/ZELMaterialModel/ZELBareFeature.h"
#include "tests/ZELMaterialModel/ZELMaterialTree.h"
#include "tests/ZELMaterialModel/ZELRows.h"
#include "tests/support/ZELDiagnostics.h"
#include "tests/support/ZELStores.h"
#include "tests/support/ZELTestAccess.h"
#include "tests/support/ZELTestServices.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

namespace {

class ZELMaterialPlasticTest : public ZELStoreTest {
protected:
    void SetType(const char* type) { SetText(tree_.plastic, "PlasticHardeningType", type); }
    void StoreColumns(const std::vector<double>& stress, const std::vector<double>& strain,
                      const std::vector<double>& temperatures) {
        SetList(tree_.plastic, "StressData", stress);
        SetList(tree_.plastic, "StrainData", strain);
        SetList(tree_.plastic, "TemperatureData", temperatures);
    }
    void ExpectStored(const std::vector<double>& stress, const std::vector<double>& strain,
                      const std::vector<double>& temperatures) {
        EXPECT_THAT(List(tree_.plastic, "StressData"), Optional(stress));
        EXPECT_THAT(List(tree_.plastic, "StrainData"), Optional(strain));
        EXPECT_THAT(List(tree_.plastic, "TemperatureData"), Optional(temperatures));
    }

    /// A plastic feature that lacks one attribute, under the same material.
    void MakePlasticWithout(const char* attribute) {
        Store().OmitAttribute("ZELPlasticLT", attribute);
        tree_.plastic = Make("ZELPlasticLT");
        Attach(tree_.material, "ZELPlastic", tree_.plastic);
    }

    ZELMaterialTree tree_{Store()};
    ZELTestServices services_;
};

}  // namespace

TEST_P(ZELMaterialPlasticTest, ReportsAMissingMaterialAndStaysEmpty) {
    const ZELDiagnostics diagnostics;

    ZELMaterialPlastic plastic(nullptr);

    EXPECT_THAT(diagnostics.Lines(), ElementsAre("No material SpecObject !"));
    EXPECT_EQ(plastic.GetPlasticEnabled(), 0);
    EXPECT_EQ(plastic.GetDataFile(), "");
    KORUnicodeString type("kept");
    EXPECT_EQ(plastic.GetHardeningType(type), E_NOINTERFACE);
    EXPECT_EQ(type, "kept");
    EXPECT_EQ(plastic.SetHardeningType("IsotropicHardening"), E_NOINTERFACE);
    EXPECT_EQ(plastic.SetPlasticEnabled(1), E_NOINTERFACE);
    EXPECT_EQ(plastic.SetPlasticDataArray(ZELTableOf({{250.0, 0.0, 20.0}})), E_NOINTERFACE);
    EXPECT_EQ(ZELTestAccess::GetPropertyPlasticityData(plastic), E_NOINTERFACE);
}

TEST_P(ZELMaterialPlasticTest, ReportsAMaterialWithoutAttributeAccess) {
    const auto bare = ZELMakeBareFeature();
    const ZELDiagnostics diagnostics;

    const ZELMaterialPlastic plastic(bare.Get());

    EXPECT_THAT(diagnostics.Lines(), ElementsAre("Accessing ZELMaterial failed !"));
}

TEST_P(ZELMaterialPlasticTest, ReportsAMissingFeatureAndEachReadThatFailsForThat) {
    const auto material = Make("ZELMaterialLT");
    SetFlag(material, "ZELPlasticFlag", true);
    const ZELDiagnostics diagnostics;

    const ZELMaterialPlastic plastic(material.Get());

    EXPECT_THAT(diagnostics.Lines(),
                ElementsAre("No ZELPlastic object found !", "Can't get property temperature dependent",
                            "Can't get plasticity data", "Can't get property plastic data file"));
    EXPECT_EQ(plastic.GetPlasticEnabled(), 1);
}

TEST_P(ZELMaterialPlasticTest, ReportsAMissingFlagAndReadsOn) {
    Store().OmitAttribute("ZELMaterialLT", "ZELPlasticFlag");
    const ZELMaterialTree tree(Store());
    SetText(tree.plastic, "DataFile", "steel.csv");
    const ZELDiagnostics diagnostics;

    ZELMaterialPlastic plastic(tree.material.Get());

    EXPECT_THAT(diagnostics.Lines(), ElementsAre("Can't get property plastic enabled"));
    EXPECT_EQ(plastic.GetDataFile(), "steel.csv");
}

TEST_P(ZELMaterialPlasticTest, ReportsAMissingTemperatureFlagAndDataFile) {
    MakePlasticWithout("PlasticTemperatureDependent");
    MakePlasticWithout("DataFile");
    const ZELDiagnostics diagnostics;

    const ZELMaterialPlastic plastic(tree_.material.Get());

    EXPECT_THAT(diagnostics.Lines(), ElementsAre("Can't get property temperature dependent",
                                                 "Can't get property plastic data file"));
}

TEST_P(ZELMaterialPlasticTest, ReportsAMissingColumn) {
    MakePlasticWithout("StrainData");
    SetType("KinematicHardening");
    const ZELDiagnostics diagnostics;

    ZELMaterialPlastic plastic(tree_.material.Get());

    EXPECT_THAT(diagnostics.Lines(), ElementsAre("Can't get plasticity data"));
    EXPECT_EQ(ZELTestAccess::InitPlasticProperties(plastic), S_OK) << "it never fails";
}

TEST_P(ZELMaterialPlasticTest, ReadsFlagsTableAndDataFileWhenItIsBuilt) {
    SetFlag(tree_.material, "ZELPlasticFlag", true);
    SetFlag(tree_.plastic, "PlasticTemperatureDependent", true);
    SetText(tree_.plastic, "DataFile", "steel.csv");
    SetType("IsotropicHardening");
    StoreColumns({250e6}, {0.0}, {293.15});
    const ZELDiagnostics diagnostics;

    ZELMaterialPlastic plastic(tree_.material.Get());

    EXPECT_EQ(plastic.GetPlasticEnabled(), 1);
    EXPECT_EQ(plastic.GetTemperatureDependent(), 1);
    EXPECT_EQ(plastic.GetDataFile(), "steel.csv");
    EXPECT_EQ(ZELRowsOf(plastic.GetPlasticDataArray()), (ZELRows{{250e6, 0.0, 293.15}}));
    EXPECT_THAT(diagnostics.Lines(), IsEmpty());
}

TEST_P(ZELMaterialPlasticTest, WritesFlagsAndDataFileThrough) {
    ZELMaterialPlastic plastic(tree_.material.Get());

    EXPECT_EQ(plastic.SetPlasticEnabled(1), S_OK);
    EXPECT_EQ(plastic.SetTemperatureDependent(1), S_OK);
    EXPECT_EQ(plastic.SetDataFile("steel.csv"), S_OK);

    EXPECT_TRUE(GetFlag(tree_.material, "ZELPlasticFlag"));
    EXPECT_TRUE(GetFlag(tree_.plastic, "PlasticTemperatureDependent"));
    EXPECT_EQ(GetText(tree_.plastic, "DataFile"), "steel.csv");
}

TEST_P(ZELMaterialPlasticTest, KeepsAFlagThatCannotBeStoredUntilItIsReadAgain) {
    Store().OmitAttribute("ZELMaterialLT", "ZELPlasticFlag");
    const ZELMaterialTree tree(Store());
    const ZELDiagnostics diagnostics;
    ZELMaterialPlastic plastic(tree.material.Get());

    EXPECT_EQ(plastic.SetPlasticEnabled(1), E_FAIL);
    EXPECT_EQ(plastic.GetPlasticEnabled(), 1);
    EXPECT_EQ(ZELTestAccess::GetPropertyPlasticEnabled(plastic), E_FAIL);
    EXPECT_EQ(plastic.GetPlasticEnabled(), 0);
}

TEST_P(ZELMaterialPlasticTest, StoresAHardeningTypeAndAnswersFailureAllTheSame) {
    ZELMaterialPlastic plastic(tree_.material.Get());
    KORUnicodeString type;

    EXPECT_EQ(plastic.SetHardeningType("KinematicHardening"), E_FAIL);
    EXPECT_EQ(GetText(tree_.plastic, "PlasticHardeningType"), "KinematicHardening");
    EXPECT_EQ(plastic.GetHardeningType(type), S_OK);
    EXPECT_EQ(type, "KinematicHardening");

    EXPECT_EQ(plastic.SetHardeningType("anything"), E_FAIL);
    EXPECT_EQ(GetText(tree_.plastic, "PlasticHardeningType"), "anything");
}

TEST_P(ZELMaterialPlasticTest, FailsTheHardeningTypeOfAFeatureThatLacksIt) {
    MakePlasticWithout("PlasticHardeningType");
    ZELMaterialPlastic plastic(tree_.material.Get());
    KORUnicodeString type("kept");

    EXPECT_EQ(plastic.SetHardeningType("KinematicHardening"), E_FAIL);
    EXPECT_EQ(plastic.GetHardeningType(type), E_FAIL);
    EXPECT_EQ(type, "kept");
}

TEST_P(ZELMaterialPlasticTest, NeverKeepsTheHardeningTypeInMemory) {
    ZELMaterialPlastic plastic(tree_.material.Get());
    SetType("IsotropicHardening");
    KORUnicodeString type;
    plastic.GetHardeningType(type);
    EXPECT_EQ(type, "IsotropicHardening");

    SetType("KinematicHardening");
    plastic.GetHardeningType(type);
    EXPECT_EQ(type, "KinematicHardening");
}

TEST_P(ZELMaterialPlasticTest, RoundTripsACurve) {
    for (const char* type : {"IsotropicHardening", "KinematicHardening"}) {
        SetType(type);
        ZELMaterialPlastic plastic(tree_.material.Get());

        EXPECT_EQ(plastic.SetPlasticDataArray(ZELTableOf({{250.0, 0.0, 20.0}, {300.0, 0.1, 20.0}})), S_OK);

        ExpectStored({250.0, 300.0}, {0.0, 0.1}, {20.0, 20.0});
        EXPECT_EQ(ZELRowsOf(plastic.GetPlasticDataArray()),
                  (ZELRows{{250.0, 0.0, 20.0}, {300.0, 0.1, 20.0}}));
        EXPECT_EQ(ZELTestAccess::GetPropertyPlasticityData(plastic), S_OK);
    }
    EXPECT_THAT(services_.FatalReports(), IsEmpty());
}

TEST_P(ZELMaterialPlasticTest, StoresAllThreeColumnsWhateverTheTemperatureFlagSays) {
    SetType("IsotropicHardening");
    ZELMaterialPlastic plastic(tree_.material.Get());
    plastic.SetTemperatureDependent(0);

    EXPECT_EQ(plastic.SetPlasticDataArray(ZELTableOf({{250.0, 0.0, 20.0}})), S_OK);

    ExpectStored({250.0}, {0.0}, {20.0});
}

TEST_P(ZELMaterialPlasticTest, StoresZeroWhereARowIsTooNarrow) {
    SetType("IsotropicHardening");
    ZELMaterialPlastic plastic(tree_.material.Get());

    EXPECT_EQ(plastic.SetPlasticDataArray(ZELTableOf({{250.0}, {300.0, 0.1}})), S_OK);

    ExpectStored({250.0, 300.0}, {0.0, 0.1}, {0.0, 0.0});
}

TEST_P(ZELMaterialPlasticTest, StoresACurveThatStartsWithPlasticStrainAndReportsIt) {
    SetType("IsotropicHardening");
    ZELMaterialPlastic plastic(tree_.material.Get());

    EXPECT_EQ(plastic.SetPlasticDataArray(ZELTableOf({{250.0, 0.002, 20.0}})), E_FAIL);
    ExpectStored({250.0}, {0.002}, {20.0});

    EXPECT_EQ(plastic.SetPlasticDataArray(ZELTableOf({{250.0, -0.0, 20.0}, {260.0, 0.5, 20.0}})), S_OK);
    EXPECT_EQ(plastic.SetPlasticDataArray(ZELTableOf({{250.0, 1e-300, 20.0}})), E_FAIL) << "exactly 0";
    EXPECT_EQ(plastic.SetPlasticDataArray(ZELTableOf({{250.0, std::numeric_limits<double>::quiet_NaN()}})),
              E_FAIL);
}

TEST_P(ZELMaterialPlasticTest, StoresAnEmptyCurveAsThreeEmptyLists) {
    SetType("KinematicHardening");
    StoreColumns({1.0}, {0.0}, {2.0});
    ZELMaterialPlastic plastic(tree_.material.Get());

    EXPECT_EQ(plastic.SetPlasticDataArray(ZELTableOf({})), S_OK);

    ExpectStored({}, {}, {});
    EXPECT_EQ(plastic.GetPlasticDataArray().size(), 0);
}

TEST_P(ZELMaterialPlasticTest, KeepsTheColumnsBeforeAMissingOneWritten) {
    MakePlasticWithout("StrainData");
    SetType("IsotropicHardening");
    ZELMaterialPlastic plastic(tree_.material.Get());

    EXPECT_EQ(plastic.SetPlasticDataArray(ZELTableOf({{250.0, 0.0, 20.0}})), E_FAIL);

    EXPECT_THAT(List(tree_.plastic, "StressData"), Optional(ElementsAre(250.0)));
    EXPECT_EQ(List(tree_.plastic, "TemperatureData"), std::nullopt);
}

TEST_P(ZELMaterialPlasticTest, EmptiesMemoryWhenAColumnIsMissing) {
    MakePlasticWithout("TemperatureData");
    SetType("IsotropicHardening");
    ZELMaterialPlastic plastic(tree_.material.Get());
    plastic.SetPlasticDataArray(ZELTableOf({{250.0, 0.0, 20.0}}));
    const ZELDiagnostics diagnostics;

    EXPECT_EQ(plastic.GetPlasticDataArray().size(), 0);

    EXPECT_THAT(diagnostics.Lines(), ElementsAre("GetPlasticDataArray : Can't get plasticity data"));
    EXPECT_EQ(ZELTestAccess::GetPropertyPlasticityData(plastic), E_FAIL);
}

TEST_P(ZELMaterialPlasticTest, ReadsAnEmptyTableWhenAColumnWasNeverValued) {
    SetType("IsotropicHardening");
    SetList(tree_.plastic, "StressData", {250.0});
    SetList(tree_.plastic, "StrainData", {0.0});
    const ZELDiagnostics diagnostics;
    ZELMaterialPlastic plastic(tree_.material.Get());

    EXPECT_EQ(ZELTestAccess::GetPropertyPlasticityData(plastic), S_OK);
    EXPECT_EQ(plastic.GetPlasticDataArray().size(), 0);
    EXPECT_THAT(diagnostics.Lines(), IsEmpty());
}

TEST_P(ZELMaterialPlasticTest, ReportsAStrainListThatIsTooShortAndKeepsTheRowsBefore) {
    SetType("IsotropicHardening");
    ZELMaterialPlastic plastic(tree_.material.Get());
    StoreColumns({250.0, 260.0, 270.0}, {0.0, 0.1}, {20.0, 20.0, 20.0});
    const ZELDiagnostics diagnostics;

    EXPECT_EQ(ZELRowsOf(plastic.GetPlasticDataArray()), (ZELRows{{250.0, 0.0, 20.0}, {260.0, 0.1, 20.0}}));

    EXPECT_THAT(diagnostics.Lines(), ElementsAre("The Plastic data is inconsistent !",
                                                 "GetPlasticDataArray : Can't get plasticity data"));
    EXPECT_EQ(ZELTestAccess::GetPropertyPlasticityData(plastic), E_FAIL);
}

TEST_P(ZELMaterialPlasticTest, ReportsATemperatureListThatIsTooShort) {
    SetType("KinematicHardening");
    StoreColumns({250.0}, {0.0}, {});
    const ZELDiagnostics diagnostics;

    ZELMaterialPlastic plastic(tree_.material.Get());

    EXPECT_THAT(diagnostics.Lines(),
                ElementsAre("The Plastic data is inconsistent !", "Can't get plasticity data"));
}

TEST_P(ZELMaterialPlasticTest, IgnoresValuesBeyondTheStressList) {
    SetType("IsotropicHardening");
    StoreColumns({250.0, 260.0}, {0.0, 0.1, 0.2}, {20.0, 21.0, 22.0});
    ZELMaterialPlastic plastic(tree_.material.Get());

    EXPECT_EQ(ZELTestAccess::GetPropertyPlasticityData(plastic), S_OK);
    EXPECT_EQ(ZELRowsOf(plastic.GetPlasticDataArray()), (ZELRows{{250.0, 0.0, 20.0}, {260.0, 0.1, 21.0}}));
}

TEST_P(ZELMaterialPlasticTest, ReadsNothingWithoutAHardeningTypeButRefusesToWrite) {
    StoreColumns({1.0}, {0.0}, {2.0});
    ZELMaterialPlastic plastic(tree_.material.Get());
    EXPECT_EQ(ZELTestAccess::GetPropertyPlasticityData(plastic), S_OK);
    EXPECT_EQ(plastic.GetPlasticDataArray().size(), 0);
    EXPECT_THAT(services_.FatalReports(), IsEmpty());

    EXPECT_EQ(plastic.SetPlasticDataArray(ZELTableOf({{250.0, 0.0, 20.0}})), S_OK);

    ASSERT_EQ(services_.FatalReports().size(), 1u);
    EXPECT_EQ(services_.FatalReports()[0].text, "AssertionFailed:0");
    EXPECT_EQ(services_.FatalReports()[0].source, "ZELMaterialPlastic");
    EXPECT_GT(services_.FatalReports()[0].line, 0);
    ExpectStored({1.0}, {0.0}, {2.0});
}

TEST_P(ZELMaterialPlasticTest, TakesAnUnreadableHardeningTypeForNone) {
    MakePlasticWithout("PlasticHardeningType");
    ZELMaterialPlastic plastic(tree_.material.Get());
    EXPECT_EQ(ZELTestAccess::GetPropertyPlasticityData(plastic), S_OK);

    EXPECT_EQ(plastic.SetPlasticDataArray(ZELTableOf({{250.0, 0.0, 20.0}})), S_OK);

    ASSERT_EQ(services_.FatalReports().size(), 1u);
    EXPECT_EQ(services_.FatalReports()[0].text, "AssertionFailed:0");
    EXPECT_EQ(List(tree_.plastic, "StressData"), std::nullopt);
}

TEST_P(ZELMaterialPlasticTest, ReportsAnUnknownHardeningTypeInBothDirections) {
    StoreColumns({1.0}, {0.0}, {2.0});
    ZELMaterialPlastic plastic(tree_.material.Get());
    SetType("isotropichardening");

    EXPECT_EQ(ZELTestAccess::GetPropertyPlasticityData(plastic), S_OK);
    ASSERT_EQ(services_.FatalReports().size(), 1u);
    EXPECT_EQ(services_.FatalReports()[0].text, "AssertionFailed:0");

    EXPECT_EQ(plastic.SetPlasticDataArray(ZELTableOf({{250.0, 0.0, 20.0}})), S_OK);
    EXPECT_EQ(services_.FatalReports().size(), 2u);
    EXPECT_EQ(plastic.GetPlasticDataArray().size(), 0);
    ExpectStored({1.0}, {0.0}, {2.0});
}

TEST_P(ZELMaterialPlasticTest, HoldsItsFeaturesAndGivesThemBack) {
    const long material = References(tree_.material);
    const long feature = References(tree_.plastic);
    {
        ZELMaterialPlastic plastic(tree_.material.Get());
        plastic.SetHardeningType("IsotropicHardening");
        plastic.SetPlasticDataArray(ZELTableOf({{250.0, 0.0, 20.0}}));

        EXPECT_EQ(References(tree_.material), material + 1);
        EXPECT_EQ(References(tree_.plastic), feature + 1);
        EXPECT_EQ(KORModule::Of("ZELMaterialModel").LiveObjects(), 1);
    }

    EXPECT_EQ(References(tree_.material), material);
    EXPECT_EQ(References(tree_.plastic), feature);
    EXPECT_EQ(KORModule::Of("ZELMaterialModel").LiveObjects(), 0);
}

ZEL_ON_BOTH_STORES(ZELMaterialPlasticTest);
