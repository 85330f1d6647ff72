#include "tests/ZELMaterialModel/src/ZELSingleTable.h"

#include <gmock/gmock.h>

#include <tuple>

#include "tests/ZELMaterialModel/ZELBareFeature.h"
#include "tests/support/ZELDiagnostics.h"
#include "tests/support/ZELStores.h"

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;
using testing::Optional;

namespace {

constexpr const char* kCannotReadTemperatureFlag = "Can't get property temperature dependent";

/// Density, conductivity, specific heat and thermal expansion, each over each store.
class ZELSingleTableBehavior : public testing::TestWithParam<std::tuple<ZELSingleTableCase, ZELStoreChoice>> {
protected:
    const ZELSingleTableCase& Case() const { return std::get<0>(GetParam()); }
    ZELTestStore& Store() { return *store_; }

    /// The material and the behavior's own feature; attributes are to be left out before that.
    void MakeFeatures() {
        material_ = store_->Make("ZELMaterialLT");
        feature_ = store_->Make(Case().lateType);
        Attach(material_, Case().component, feature_);
    }
    std::unique_ptr<ZELSingleTable> Build() {
        if (!material_) MakeFeatures();
        return Case().make(material_.Get());
    }
    std::unique_ptr<ZELSingleTable> BuildWithout(const char* attribute) {
        store_->OmitAttribute(Case().lateType, attribute);
        const ZELDiagnostics reported;
        return Build();
    }

    void Store(bool temperatureDependent, const std::vector<double>& values,
               const std::vector<double>& temperatures) {
        SetFlag(feature_, "TemperatureDependent", temperatureDependent);
        SetList(feature_, Case().values, values);
        SetList(feature_, "TemperatureData", temperatures);
    }

    std::vector<std::string> With(const std::vector<const char*>& texts) const {
        std::vector<std::string> lines;
        for (const char* text : texts) {
            if (text) lines.emplace_back(text);
        }
        return lines;
    }

    KORISpecObject_var material_;
    KORISpecObject_var feature_;

private:
    std::unique_ptr<ZELTestStore> store_ = std::get<1>(GetParam()).make();
};

}  // namespace

TEST_P(ZELSingleTableBehavior, ReportsAMissingMaterialAndStaysAsConstructed) {
    const ZELDiagnostics diagnostics;

    const auto behavior = Case().make(nullptr);

    EXPECT_THAT(diagnostics.Lines(), ElementsAre("No material SpecObject !"));
    EXPECT_EQ(behavior->GetEnabled(), 0);
    EXPECT_EQ(behavior->Properties().GetTemperatureDependent(), 0);
    EXPECT_EQ(behavior->Properties().GetDataFile(), "");
    EXPECT_THAT(behavior->GetDataArray(), IsEmpty());
    EXPECT_EQ(behavior->SetEnabled(1), E_NOINTERFACE);
    EXPECT_EQ(behavior->GetPropertyEnabled(), E_NOINTERFACE);
    EXPECT_EQ(behavior->GetEnabled(), 1);
}

TEST_P(ZELSingleTableBehavior, ReportsAMaterialWithoutAttributeAccessAndStaysAsConstructed) {
    const auto bare = ZELMakeBareFeature();
    {
        const ZELDiagnostics diagnostics;

        const auto behavior = Case().make(bare.Get());

        EXPECT_THAT(diagnostics.Lines(), ElementsAre("Accessing ZELMaterial failed !"));
        EXPECT_EQ(behavior->GetEnabled(), 0);
        EXPECT_THAT(behavior->GetDataArray(), IsEmpty());
        EXPECT_EQ(References(bare), 2);
    }

    EXPECT_EQ(References(bare), 1);
}

TEST_P(ZELSingleTableBehavior, ReportsAMissingFeatureAndEveryReadOfItButReadsTheFlagOfTheMaterial) {
    material_ = Store().Make("ZELMaterialLT");
    SetFlag(material_, Case().flag, true);
    const ZELDiagnostics diagnostics;

    const auto behavior = Build();

    EXPECT_THAT(diagnostics.Lines(),
                ElementsAreArray(With({Case().noFeature, kCannotReadTemperatureFlag, Case().cannotReadTable,
                                       Case().cannotReadReferenceTemperature, Case().cannotReadDataFile})));
    EXPECT_EQ(behavior->GetEnabled(), 1);
    EXPECT_EQ(behavior->Properties().GetTemperatureDependent(), 0);
    EXPECT_THAT(behavior->GetDataArray(), IsEmpty());
}

TEST_P(ZELSingleTableBehavior, AnswersNoInterfaceWithoutAFeatureAndKeepsWhatItWasGiven) {
    material_ = Store().Make("ZELMaterialLT");
    const ZELDiagnostics diagnostics;
    const auto behavior = Build();

    EXPECT_EQ(behavior->Properties().SetTemperatureDependent(1), E_NOINTERFACE);
    EXPECT_EQ(behavior->Properties().SetDataFile("table.csv"), E_NOINTERFACE);
    EXPECT_EQ(behavior->SetDataArray({{1.0, 293.0}}), E_NOINTERFACE);
    EXPECT_EQ(behavior->Properties().GetPropertyTemperatureDependent(), E_NOINTERFACE);
    EXPECT_EQ(behavior->Properties().GetPropertyDataFile(), E_NOINTERFACE);
    EXPECT_EQ(behavior->GetPropertyDataArray(), E_NOINTERFACE);

    EXPECT_EQ(behavior->Properties().GetTemperatureDependent(), 1);
    EXPECT_EQ(behavior->Properties().GetDataFile(), "table.csv");
    EXPECT_EQ(behavior->GetDataArray(), (ZELRows{{1.0, 293.0}}));
    EXPECT_EQ(behavior->SetEnabled(1), S_OK);
    EXPECT_TRUE(GetFlag(material_, Case().flag));
}

TEST_P(ZELSingleTableBehavior, ReportsEveryReadThatFailsInTheOrderOfReading) {
    Store().OmitAttribute("ZELMaterialLT", Case().flag);
    for (const char* attribute : {"TemperatureDependent", "DataFile", "TemperatureData"}) {
        Store().OmitAttribute(Case().lateType, attribute);
    }
    if (Case().cannotReadReferenceTemperature) Store().OmitAttribute(Case().lateType, "ReferenceTemperature");
    const ZELDiagnostics diagnostics;

    const auto behavior = Build();

    EXPECT_THAT(
        diagnostics.Lines(),
        ElementsAreArray(With({Case().cannotReadEnabled, kCannotReadTemperatureFlag, Case().cannotReadTable,
                               Case().cannotReadReferenceTemperature, Case().cannotReadDataFile})));
}

TEST_P(ZELSingleTableBehavior, ReportsNothingWhenAllIsThere) {
    const ZELDiagnostics diagnostics;

    const auto behavior = Build();

    EXPECT_THAT(diagnostics.Lines(), IsEmpty());
    EXPECT_EQ(behavior->GetEnabled(), 0);
    EXPECT_EQ(behavior->Properties().GetTemperatureDependent(), 0);
    EXPECT_EQ(behavior->Properties().GetDataFile(), "");
    EXPECT_THAT(behavior->GetDataArray(), IsEmpty());
}

TEST_P(ZELSingleTableBehavior, ReadsWhatIsStoredWhenItIsBuilt) {
    MakeFeatures();
    SetFlag(material_, Case().flag, true);
    Store(true, {7850.0, 7800.0}, {293.0, 573.0});
    SetText(feature_, "DataFile", "steel.csv");

    const auto behavior = Build();

    EXPECT_EQ(behavior->GetEnabled(), 1);
    EXPECT_EQ(behavior->Properties().GetTemperatureDependent(), 1);
    EXPECT_EQ(behavior->Properties().GetDataFile(), "steel.csv");
    EXPECT_EQ(behavior->GetDataArray(), (ZELRows{{7850.0, 293.0}, {7800.0, 573.0}}));
}

TEST_P(ZELSingleTableBehavior, ReadsAgainWithInitAndAlwaysSucceeds) {
    const auto behavior = Build();
    SetFlag(material_, Case().flag, true);
    Store(true, {7850.0}, {});
    SetText(feature_, "DataFile", "steel.csv");
    const ZELDiagnostics diagnostics;

    EXPECT_EQ(behavior->InitProperties(), S_OK);

    EXPECT_THAT(diagnostics.Lines(), ElementsAre(Case().inconsistent, Case().cannotReadTable));
    EXPECT_EQ(behavior->GetEnabled(), 1);
    EXPECT_EQ(behavior->Properties().GetDataFile(), "steel.csv");
}

TEST_P(ZELSingleTableBehavior, WritesThroughWithItsSetters) {
    const auto behavior = Build();

    EXPECT_EQ(behavior->SetEnabled(1), S_OK);
    EXPECT_EQ(behavior->Properties().SetTemperatureDependent(1), S_OK);
    EXPECT_EQ(behavior->Properties().SetDataFile("steel.csv"), S_OK);
    EXPECT_EQ(behavior->SetDataArray({{7850.0, 293.0}, {7800.0, 573.0}}), S_OK);

    EXPECT_EQ(behavior->GetEnabled(), 1);
    EXPECT_EQ(behavior->Properties().GetTemperatureDependent(), 1);
    EXPECT_EQ(behavior->Properties().GetDataFile(), "steel.csv");
    EXPECT_EQ(behavior->GetDataArray(), (ZELRows{{7850.0, 293.0}, {7800.0, 573.0}}));
    EXPECT_TRUE(GetFlag(material_, Case().flag));
    EXPECT_TRUE(GetFlag(feature_, "TemperatureDependent"));
    EXPECT_EQ(GetText(feature_, "DataFile"), "steel.csv");
    EXPECT_THAT(List(feature_, Case().values), Optional(ElementsAre(7850.0, 7800.0)));
    EXPECT_THAT(List(feature_, "TemperatureData"), Optional(ElementsAre(293.0, 573.0)));
}

TEST_P(ZELSingleTableBehavior, AnswersFromMemoryUntilItIsToldToReload) {
    const auto behavior = Build();
    SetFlag(material_, Case().flag, true);
    Store(true, {7850.0}, {293.0});
    SetText(feature_, "DataFile", "steel.csv");

    EXPECT_EQ(behavior->GetEnabled(), 0);
    EXPECT_EQ(behavior->Properties().GetTemperatureDependent(), 0);
    EXPECT_EQ(behavior->Properties().GetDataFile(), "");
    EXPECT_THAT(behavior->GetDataArray(), IsEmpty());

    EXPECT_EQ(behavior->GetPropertyEnabled(), S_OK);
    EXPECT_EQ(behavior->Properties().GetPropertyTemperatureDependent(), S_OK);
    EXPECT_EQ(behavior->Properties().GetPropertyDataFile(), S_OK);
    EXPECT_EQ(behavior->GetPropertyDataArray(), S_OK);
    EXPECT_EQ(behavior->GetEnabled(), 1);
    EXPECT_EQ(behavior->Properties().GetTemperatureDependent(), 1);
    EXPECT_EQ(behavior->Properties().GetDataFile(), "steel.csv");
    EXPECT_EQ(behavior->GetDataArray(), (ZELRows{{7850.0, 293.0}}));
}

TEST_P(ZELSingleTableBehavior, StoresItsMemoryAgainOverWhatOthersWrote) {
    const auto behavior = Build();
    behavior->SetEnabled(1);
    behavior->Properties().SetTemperatureDependent(1);
    behavior->Properties().SetDataFile("steel.csv");
    behavior->SetDataArray({{7850.0, 293.0}});
    SetFlag(material_, Case().flag, false);
    Store(false, {1.0, 2.0}, {});
    SetText(feature_, "DataFile", "other.csv");

    EXPECT_EQ(behavior->SetPropertyEnabled(), S_OK);
    EXPECT_EQ(behavior->Properties().SetPropertyTemperatureDependent(), S_OK);
    EXPECT_EQ(behavior->Properties().SetPropertyDataFile(), S_OK);
    EXPECT_EQ(behavior->SetPropertyDataArray(), S_OK);

    EXPECT_TRUE(GetFlag(material_, Case().flag));
    EXPECT_TRUE(GetFlag(feature_, "TemperatureDependent"));
    EXPECT_EQ(GetText(feature_, "DataFile"), "steel.csv");
    EXPECT_THAT(List(feature_, Case().values), Optional(ElementsAre(7850.0)));
    EXPECT_THAT(List(feature_, "TemperatureData"), Optional(ElementsAre(293.0)));
}

TEST_P(ZELSingleTableBehavior, KeepsOtherFlagBytesInMemoryAndStoresThemAsOne) {
    const auto behavior = Build();

    EXPECT_EQ(behavior->SetEnabled(7), S_OK);
    EXPECT_EQ(behavior->Properties().SetTemperatureDependent(255), S_OK);
    EXPECT_EQ(behavior->SetDataArray({{7850.0, 293.0}}), S_OK);

    EXPECT_EQ(behavior->GetEnabled(), 7);
    EXPECT_EQ(behavior->Properties().GetTemperatureDependent(), 255);
    EXPECT_TRUE(GetFlag(material_, Case().flag));
    EXPECT_TRUE(GetFlag(feature_, "TemperatureDependent"));
    EXPECT_THAT(List(feature_, "TemperatureData"), Optional(ElementsAre(293.0)));
    EXPECT_EQ(behavior->GetPropertyEnabled(), S_OK);
    EXPECT_EQ(behavior->Properties().GetPropertyTemperatureDependent(), S_OK);
    EXPECT_EQ(behavior->GetEnabled(), 1);
    EXPECT_EQ(behavior->Properties().GetTemperatureDependent(), 1);
}

TEST_P(ZELSingleTableBehavior, KeepsTheEnabledFlagThatAMaterialCannotStoreUntilItIsRead) {
    Store().OmitAttribute("ZELMaterialLT", Case().flag);
    const ZELDiagnostics diagnostics;
    const auto behavior = Build();

    EXPECT_EQ(behavior->SetEnabled(1), E_FAIL);
    EXPECT_EQ(behavior->GetEnabled(), 1);

    EXPECT_EQ(behavior->GetPropertyEnabled(), E_FAIL);
    EXPECT_EQ(behavior->GetEnabled(), 0);
}

TEST_P(ZELSingleTableBehavior, KeepsTheTemperatureFlagThatAFeatureCannotStoreUntilItIsRead) {
    const auto behavior = BuildWithout("TemperatureDependent");

    EXPECT_EQ(behavior->Properties().SetTemperatureDependent(1), E_FAIL);
    EXPECT_EQ(behavior->Properties().GetTemperatureDependent(), 1);

    EXPECT_EQ(behavior->Properties().GetPropertyTemperatureDependent(), E_FAIL);
    EXPECT_EQ(behavior->Properties().GetTemperatureDependent(), 0);
}

TEST_P(ZELSingleTableBehavior, KeepsTheDataFileThatAFeatureCannotStoreAlsoAfterItIsRead) {
    const auto behavior = BuildWithout("DataFile");

    EXPECT_EQ(behavior->Properties().SetDataFile("steel.csv"), E_FAIL);
    EXPECT_EQ(behavior->Properties().GetPropertyDataFile(), E_FAIL);

    EXPECT_EQ(behavior->Properties().GetDataFile(), "steel.csv");
}

TEST_P(ZELSingleTableBehavior, KeepsTheTableThatAFeatureCannotStoreAlsoAfterItIsRead) {
    const auto behavior = BuildWithout(Case().values);

    EXPECT_EQ(behavior->SetDataArray({{7850.0}}), E_FAIL);
    EXPECT_EQ(behavior->GetPropertyDataArray(), E_FAIL);

    EXPECT_EQ(behavior->GetDataArray(), (ZELRows{{7850.0}}));
    EXPECT_EQ(List(feature_, "TemperatureData"), std::nullopt);
}

TEST_P(ZELSingleTableBehavior, StoresTheValuesOfAFeatureWithoutATemperatureColumnAndFails) {
    const auto behavior = BuildWithout("TemperatureData");

    EXPECT_EQ(behavior->SetDataArray({{7850.0}}), E_FAIL);

    EXPECT_EQ(behavior->GetDataArray(), (ZELRows{{7850.0}}));
    EXPECT_THAT(List(feature_, Case().values), Optional(ElementsAre(7850.0)));
}

TEST_P(ZELSingleTableBehavior, StoresEveryRowAlsoWhenNotTemperatureDependent) {
    const auto behavior = Build();
    behavior->SetEnabled(1);

    EXPECT_EQ(behavior->SetDataArray({{1.0}, {2.0}, {3.0}, {4.0}, {5.0}}), S_OK);

    EXPECT_EQ(behavior->GetDataArray(), (ZELRows{{1.0}, {2.0}, {3.0}, {4.0}, {5.0}}));
    EXPECT_THAT(List(feature_, Case().values), Optional(ElementsAre(1.0, 2.0, 3.0, 4.0, 5.0)));
    EXPECT_THAT(List(feature_, "TemperatureData"), Optional(IsEmpty()));
}

TEST_P(ZELSingleTableBehavior, StoresAnEmptyTableAsEmptyLists) {
    const auto behavior = Build();
    behavior->SetDataArray({{7850.0}});

    EXPECT_EQ(behavior->SetDataArray({}), S_OK);

    EXPECT_THAT(behavior->GetDataArray(), IsEmpty());
    EXPECT_THAT(List(feature_, Case().values), Optional(IsEmpty()));
    EXPECT_THAT(List(feature_, "TemperatureData"), Optional(IsEmpty()));
}

TEST_P(ZELSingleTableBehavior, ReportsAShorterTemperatureColumnAndKeepsTheRowsBeforeItsEnd) {
    const auto behavior = Build();
    behavior->Properties().SetTemperatureDependent(1);
    Store(true, {1.0, 2.0, 3.0, 4.0}, {293.0, 373.0, 473.0});
    const ZELDiagnostics diagnostics;

    EXPECT_EQ(behavior->GetPropertyDataArray(), E_FAIL);

    EXPECT_THAT(diagnostics.Lines(), ElementsAre(Case().inconsistent));
    EXPECT_EQ(behavior->GetDataArray(), (ZELRows{{1.0, 293.0}, {2.0, 373.0}, {3.0, 473.0}}));
}

TEST_P(ZELSingleTableBehavior, IsBuiltOverInconsistentColumnsAndReportsThem) {
    MakeFeatures();
    Store(true, {1.0, 2.0}, {293.0});
    SetText(feature_, "DataFile", "steel.csv");
    const ZELDiagnostics diagnostics;

    const auto behavior = Build();

    EXPECT_THAT(diagnostics.Lines(), ElementsAre(Case().inconsistent, Case().cannotReadTable));
    EXPECT_EQ(behavior->GetDataArray(), (ZELRows{{1.0, 293.0}}));
    EXPECT_EQ(behavior->Properties().GetDataFile(), "steel.csv");
}

TEST_P(ZELSingleTableBehavior, ReadsAnEmptyTableWhileTheNeededTemperaturesWereNeverValued) {
    const auto behavior = Build();
    behavior->SetDataArray({{9.0}});
    behavior->Properties().SetTemperatureDependent(1);
    Access(feature_)->RemoveValue(KORName::Intern("TemperatureData"));
    const ZELDiagnostics diagnostics;

    EXPECT_EQ(behavior->GetPropertyDataArray(), S_OK);

    EXPECT_THAT(diagnostics.Lines(), IsEmpty());
    EXPECT_THAT(behavior->GetDataArray(), IsEmpty());
}

TEST_P(ZELSingleTableBehavior, IgnoresLongerTemperaturesAndAllOfThemWhenNotTemperatureDependent) {
    const auto behavior = Build();
    Store(true, {1.0, 2.0}, {293.0, 373.0, 473.0, 573.0, 673.0});
    const ZELDiagnostics diagnostics;

    EXPECT_EQ(behavior->GetPropertyDataArray(), S_OK);
    EXPECT_EQ(behavior->GetDataArray(), (ZELRows{{1.0}, {2.0}}));

    EXPECT_EQ(behavior->Properties().GetPropertyTemperatureDependent(), S_OK);
    EXPECT_EQ(behavior->GetPropertyDataArray(), S_OK);
    EXPECT_EQ(behavior->GetDataArray(), (ZELRows{{1.0, 293.0}, {2.0, 373.0}}));
    EXPECT_THAT(diagnostics.Lines(), IsEmpty());
}

TEST_P(ZELSingleTableBehavior, HoldsMaterialAndFeatureForAsLongAsItLives) {
    MakeFeatures();
    const long material = References(material_);
    const long feature = References(feature_);
    {
        const auto behavior = Build();
        behavior->SetDataArray({{1.0}});
        behavior->GetPropertyEnabled();

        EXPECT_EQ(References(material_), material + 1);
        EXPECT_EQ(References(feature_), feature + 1);
    }

    EXPECT_EQ(References(material_), material);
    EXPECT_EQ(References(feature_), feature);
}

INSTANTIATE_TEST_SUITE_P(, ZELSingleTableBehavior,
                         testing::Combine(testing::ValuesIn(ZELSingleTableCases()),
                                          testing::ValuesIn(ZELBothStores())),
                         [](const auto& choice) {
                             return std::string(std::get<0>(choice.param).thing) + "_" +
                                    std::get<1>(choice.param).name;
                         });
