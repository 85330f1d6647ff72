#include "tests/ZELMaterialModel/older/ZELOlderDocument.h"

namespace {

/// An upgrade over a catalog that lacks one attribute, and the next one over the complete catalog. What the
/// document had under that attribute is kept and read again.
struct MissingKey {
    const char* name;
    const char* document;
    const char* lateType;
    const char* attribute;
    std::vector<HRESULT> first;  ///< none when the upgrade is not asked for
    bool stillNeeded;
    ZELChanges changes;
    std::vector<HRESULT> next;        ///< none when the upgrade is not asked for any more
    ZELRows coefficients;             ///< in the end
    std::vector<double> johnsonCook;  ///< in the end
};

void PrintTo(const MissingKey& missing, std::ostream* out) {
    *out << missing.name;
}

const ZELRows kScaled = {{5e5, 1e5, 2e-8, 293.15}, {4e5, 8e4, 2.5e-8, 353.15}};
const ZELRows kUnscaled = {{0.5, 0.1, 0.02, 293.15}, {0.4, 0.08, 0.025, 353.15}};
const ZELRows kMoved = {{5e5, 1e5, 2e-8, 293.15}, {4e5, 8e4}};
const std::vector<double> kCopper = {90e6, 292e6, 0.31, 1.09, 1356.0, 298.0};

const std::vector<MissingKey> kMissingKeys = {
    // Keys of the query. A component without one counts as missing, everything else as nothing to do.
    {"UserMaterial",
     "user_material_missing",
     "ZELMaterialLT",
     "ZELUserMaterial",
     {E_FAIL},
     true,
     {"7 Container"},
     {S_OK},
     {},
     {}},
    {"Hyperelasticity",
     "units_not_converted",
     "ZELMaterialLT",
     "ZELHyperelasticity",
     {E_FAIL},
     true,
     {"9 Container"},
     {S_OK},
     kScaled,
     {}},
    {"Plastic", "johnson_cook_old_key", "ZELMaterialLT", "ZELPlastic", {}, false, {}, {S_OK}, {}, kCopper},
    {"OldJohnsonCook",
     "johnson_cook_old_key",
     "ZELPlasticLT",
     "JohnsonCookData",
     {},
     false,
     {},
     {S_OK},
     {},
     kCopper},
    {"OldModel",
     "hyperelastic_model_old_key",
     "MRVHyperelasticityLT",
     "HyperelasticModel",
     {},
     false,
     {},
     {S_OK},
     kMoved,
     {}},
    {"Units",
     "units_not_converted",
     "MRVHyperelasticityLT",
     "HyperelasticUnitUpgradeRequired",
     {},
     false,
     {},
     {S_OK},
     kScaled,
     {}},
    {"ForeignTestData",
     "foreign_test_data_on",
     "ZELHyperelasticMaterialModelLT",
     "HyperelasticMatModelData",
     {},
     false,
     {},
     {S_OK},
     kScaled,
     {}},

    // Keys of the steps.
    {"NewJohnsonCook",
     "johnson_cook_old_key",
     "ZELPlasticLT",
     "JohnsonCookData_v2",
     {E_FAIL},
     true,
     {"9 Container"},
     {S_OK},
     {},
     kCopper},
    {"OneJohnsonCookParameter",
     "johnson_cook_old_key",
     "ZELPlasticJohnsonCookLT",
     "CoeffA",
     {S_OK},
     false,
     {"9 Container", "4 JohnsonCookData_v2", "4 JohnsonCookData"},
     {},
     {},
     {0.0, 292e6, 0.31, 1.09, 1356.0, 298.0}},
    {"NewModel",
     "hyperelastic_model_old_key",
     "MRVHyperelasticityLT",
     "HyperelasticModel_v2",
     {E_FAIL},
     true,
     {"9 Container", "10 Container", "11 Container"},
     {S_OK},
     kMoved,
     {}},
    {"ListOfRowsOfTheOldModel",
     "hyperelastic_model_old_key",
     "ZELHyperelasticMaterialModelLT",
     "HyperelasticMatModelData",
     {E_FAIL},
     true,
     {"9 Container"},
     {S_OK},
     kMoved,
     {}},
    {"DataFileOfTheOldModel",
     "hyperelastic_model_old_key",
     "ZELHyperelasticMaterialModelLT",
     "HyperelasticMatModelDataFile",
     {S_OK},
     false,
     {"9 Container", "10 Container", "11 Container", "5 HyperelasticModel", "5 HyperelasticModel_v2"},
     {},
     kMoved,
     {}},
    {"ModelOfNewHyperelasticity",
     "hyperelasticity_missing",
     "MRVHyperelasticityLT",
     "HyperelasticModel_v2",
     {E_FAIL},
     true,
     {"5 Container", "3 ZELHyperelasticity", "6 Container"},
     {S_OK},
     {},
     {}},
    {"UnitsOfNewHyperelasticity",
     "hyperelasticity_missing",
     "MRVHyperelasticityLT",
     "HyperelasticUnitUpgradeRequired",
     {E_FAIL},
     false,
     {"5 Container", "3 ZELHyperelasticity", "6 Container", "7 Container"},
     {S_OK},
     {},
     {}},
    {"FatherInTheOldContainer",
     "old_container_hyperelastic_on",
     "ZELMaterialLT",
     "Father",
     {E_FAIL},
     true,
     {},
     {S_OK},
     kScaled,
     {}},

    // Keys of the conversion, which marks the table as converted first: it is never tried again.
    {"BehaviorFlag",
     "units_not_converted",
     "ZELMaterialLT",
     "ZELHyperelasticFlag",
     {S_OK},
     false,
     {"5 HyperelasticUnitUpgradeRequired"},
     {},
     kUnscaled,
     {}},
    {"ModelType",
     "units_not_converted",
     "MRVHyperelasticityLT",
     "HyperelasticMatModelType",
     {S_OK},
     false,
     {"5 HyperelasticUnitUpgradeRequired", "6 HyperelasticMatModelData", "9 Container", "10 Container"},
     {},
     kUnscaled,
     {}},
    {"ModelToConvert",
     "units_not_converted",
     "MRVHyperelasticityLT",
     "HyperelasticModel_v2",
     {E_FAIL},
     false,
     {"5 HyperelasticUnitUpgradeRequired"},
     {},
     kUnscaled,
     {}},
    {"TableToConvert",
     "units_not_converted",
     "ZELHyperelasticMaterialModelLT",
     "HyperelasticMatModelData",
     {E_FAIL},
     false,
     {"5 HyperelasticUnitUpgradeRequired"},
     {},
     kUnscaled,
     {}},
    {"RowsToConvert",
     "units_not_converted",
     "ZELMaterialModelRowDataLT",
     "MaterialModelRowData",
     {E_FAIL},
     false,
     {"5 HyperelasticUnitUpgradeRequired"},
     {},
     kUnscaled,
     {}},
    // Without an order there are no pairs to convert.
    {"OrderOfThePotential",
     "all_old_data_together",
     "ZELHyperelasticMaterialModelLT",
     "HyperelasticMatModelPotentialOrder",
     {S_OK},
     false,
     {"9 Container",
      "3 ZELUserMaterial",
      "10 Container",
      "4 JohnsonCookData_v2",
      "4 JohnsonCookData",
      "11 Container",
      "12 Container",
      "6 HyperelasticModel",
      "6 HyperelasticModel_v2",
      "6 HyperelasticUnitUpgradeRequired",
      "13 Container",
      "14 Container",
      "15 Container",
      "16 Container",
      "17 Container",
      "18 Container",
      "19 Container",
      "20 Container",
      "21 Container",
      "3 Father",
      "1 ApplicativeData",
      "2 Container",
      "3 Container",
      "22 Container"},
     {},
     {{0.5, 1.3, 0.25, -2.0, 0.02, 0.04, 293.15}},
     kCopper},
};

class ZELUpgradeMissingKeys : public testing::TestWithParam<MissingKey> {
protected:
    static std::vector<HRESULT> StatusesOf(const KORUpgradeReport& report) {
        std::vector<HRESULT> statuses;
        for (const ZELTold& told : ZELToldOf(report)) statuses.push_back(told.status);
        return statuses;
    }

    ZELCatalogFolder lacking_;
    const ZELCatalogFolder complete_;
};

TEST_P(ZELUpgradeMissingKeys, AreToldByTheStatusOfTheUpgrade) {
    lacking_.DropAttribute(GetParam().lateType, GetParam().attribute);
    ZELOlderDocument older(lacking_, ZELOlderText(GetParam().document));

    const KORUpgradeReport report = older.Upgrade();

    EXPECT_EQ(report.asked, 1u);
    EXPECT_EQ(StatusesOf(report), GetParam().first);
    for (const ZELTold& told : ZELToldOf(report)) {
        EXPECT_EQ(told.stillNeeded, GetParam().stillNeeded);
        EXPECT_EQ(told.changes, GetParam().changes);
    }
}

TEST_P(ZELUpgradeMissingKeys, LetTheNextUpgradeGoOnFromWhatIsStored) {
    lacking_.DropAttribute(GetParam().lateType, GetParam().attribute);
    ZELOlderDocument older(lacking_, ZELOlderText(GetParam().document));
    older.Upgrade();
    ZELOlderDocument reopened(complete_, older.Text());

    const KORUpgradeReport next = reopened.Upgrade();

    EXPECT_EQ(StatusesOf(next), GetParam().next);
    EXPECT_EQ(reopened.Coefficients(), GetParam().coefficients);
    EXPECT_EQ(reopened.JohnsonCook(), GetParam().johnsonCook);
    EXPECT_TRUE(reopened.Upgrade().upgraded.empty());
}

TEST_P(ZELUpgradeMissingKeys, LeaveNothingBehindThatAnUndoDoesNotTakeAway) {
    lacking_.DropAttribute(GetParam().lateType, GetParam().attribute);
    ZELOlderDocument older(lacking_, ZELOlderText(GetParam().document));
    const std::string original = older.Text();

    older.Upgrade();

    EXPECT_EQ(older.Document().Undo(), !GetParam().changes.empty());
    EXPECT_EQ(older.Text(), original);
}

INSTANTIATE_TEST_SUITE_P(, ZELUpgradeMissingKeys, testing::ValuesIn(kMissingKeys),
                         [](const auto& test) { return std::string(test.param.name); });

}  // namespace
