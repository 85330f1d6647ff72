#include "tests/ZELMaterialModel/older/ZELOlderDocument.h"

namespace {

/// An upgrade whose catalog lacks late types that one of its steps instantiates, and the next one with the
/// complete catalog.
struct FailingCatalog {
    const char* name;
    const char* document;
    const char* missingType;
    ZELChanges changes;  ///< what the failed upgrade stored
    bool stillNeeded;
    std::vector<HRESULT> next;        ///< of the next upgrade; none when it is not asked for
    ZELRows coefficients;             ///< in the end
    std::vector<double> johnsonCook;  ///< in the end
};

void PrintTo(const FailingCatalog& failing, std::ostream* out) {
    *out << failing.name;
}

const std::vector<FailingCatalog> kFailingCatalogs = {
    {"UserMaterial", "user_material_missing", "MRVUserMaterialLT", {}, true, {S_OK}, {}, {}},
    {"Hyperelasticity", "hyperelasticity_missing", "MRVHyperelasticityLT", {}, true, {S_OK}, {}, {}},
    // The hyperelasticity is there from now on, so the next upgrade gives it no model.
    {"ModelOfNewHyperelasticity",
     "hyperelasticity_missing",
     "ZELHyperelasticMaterialModelLT",
     {"5 Container", "3 ZELHyperelasticity"},
     true,
     {S_OK},
     {},
     {}},
    {"JohnsonCook",
     "johnson_cook_old_key",
     "ZELPlasticJohnsonCookLT",
     {},
     true,
     {S_OK},
     {},
     {90e6, 292e6, 0.31, 1.09, 1356.0, 298.0}},
    {"Model",
     "hyperelastic_model_old_key",
     "ZELHyperelasticMaterialModelLT",
     {},
     true,
     {S_OK},
     {{5e5, 1e5, 2e-8, 293.15}, {4e5, 8e4}},
     {}},
    {"RowsOfTheModel",
     "hyperelastic_model_old_key",
     "ZELMaterialModelRowDataLT",
     {"9 Container"},
     true,
     {S_OK},
     {{5e5, 1e5, 2e-8, 293.15}, {4e5, 8e4}},
     {}},
    // The old rows stay in the document, but nothing lists them any more; only an undo brings them back.
    {"RowsOfTheConvertedTable",
     "units_not_converted",
     "ZELMaterialModelRowDataLT",
     {"5 HyperelasticUnitUpgradeRequired", "6 HyperelasticMatModelData"},
     false,
     {},
     {},
     {}},
    {"FirstStepOfMany",
     "all_old_data_together",
     "MRVUserMaterialLT",
     {},
     true,
     {S_OK},
     {{5e5, 1.3, 2.5e5, -2.0, 2e-8, 4e-8, 293.15}},
     {90e6, 292e6, 0.31, 1.09, 1356.0, 298.0}},
    {"SecondStepOfMany",
     "all_old_data_together",
     "ZELPlasticJohnsonCookLT",
     {"9 Container", "3 ZELUserMaterial"},
     true,
     {S_OK},
     {{5e5, 1.3, 2.5e5, -2.0, 2e-8, 4e-8, 293.15}},
     {90e6, 292e6, 0.31, 1.09, 1356.0, 298.0}},
    {"ThirdStepOfMany",
     "all_old_data_together",
     "ZELHyperelasticMaterialModelLT",
     {"9 Container", "3 ZELUserMaterial", "10 Container", "4 JohnsonCookData_v2", "4 JohnsonCookData"},
     true,
     {S_OK},
     {{5e5, 1.3, 2.5e5, -2.0, 2e-8, 4e-8, 293.15}},
     {90e6, 292e6, 0.31, 1.09, 1356.0, 298.0}},
};

class ZELUpgradeFailingCatalog : public testing::TestWithParam<FailingCatalog> {
protected:
    /// The one material's upgrade.
    static ZELTold Upgrade(ZELOlderDocument& older) {
        const auto told = ZELToldOf(older.Upgrade());
        EXPECT_EQ(told.size(), 1u);
        return told.empty() ? ZELTold() : told[0];
    }

    ZELCatalogFolder failing_;
    const ZELCatalogFolder complete_;
};

TEST_P(ZELUpgradeFailingCatalog, EndsTheUpgradeAtTheStepThatNeedsTheType) {
    failing_.DropType(GetParam().missingType);
    ZELOlderDocument older(failing_, ZELOlderTextOverCompleteCatalog(GetParam().document));

    const ZELTold told = Upgrade(older);

    EXPECT_EQ(told.status, E_FAIL);
    EXPECT_EQ(told.changes, GetParam().changes);
    EXPECT_EQ(told.stillNeeded, GetParam().stillNeeded);
}

TEST_P(ZELUpgradeFailingCatalog, LetsTheNextUpgradeGoOnFromWhatIsStored) {
    failing_.DropType(GetParam().missingType);
    ZELOlderDocument older(failing_, ZELOlderTextOverCompleteCatalog(GetParam().document));
    older.Upgrade();
    ZELOlderDocument reopened(complete_, older.Text());

    std::vector<HRESULT> next;
    for (const ZELTold& told : ZELToldOf(reopened.Upgrade())) {
        next.push_back(told.status);
        EXPECT_FALSE(told.stillNeeded);
    }

    EXPECT_EQ(next, GetParam().next);
    EXPECT_EQ(reopened.Coefficients(), GetParam().coefficients);
    EXPECT_EQ(reopened.JohnsonCook(), GetParam().johnsonCook);
    EXPECT_TRUE(reopened.Upgrade().upgraded.empty());
}

TEST_P(ZELUpgradeFailingCatalog, IsUndoneLikeASuccess) {
    failing_.DropType(GetParam().missingType);
    ZELOlderDocument older(failing_, ZELOlderTextOverCompleteCatalog(GetParam().document));
    static_cast<void>(older.Document().OpenCatalog(ZELCatalogFolder::kModuleCatalog));  // listed by then
    const std::string original = older.Text();

    older.Upgrade();

    EXPECT_EQ(older.Document().Undo(), !GetParam().changes.empty());
    EXPECT_EQ(older.Text(), original);
}

INSTANTIATE_TEST_SUITE_P(, ZELUpgradeFailingCatalog, testing::ValuesIn(kFailingCatalogs),
                         [](const auto& test) { return std::string(test.param.name); });

class ZELUpgradeMissingCatalog : public ZELUpgradeFailingCatalog {};

TEST_P(ZELUpgradeMissingCatalog, EndsTheUpgradeBeforeItsFirstStep) {
    failing_.DropCatalog();
    ZELOlderDocument older(failing_, ZELOlderTextOverCompleteCatalog(GetParam().document));
    const std::string original = older.Text();

    const ZELTold told = Upgrade(older);

    EXPECT_EQ(told.status, E_FAIL);
    EXPECT_TRUE(told.stillNeeded);
    EXPECT_EQ(told.changes, ZELChanges{});
    EXPECT_EQ(older.Text(), original);
}

TEST_P(ZELUpgradeMissingCatalog, LosesNothingForTheNextUpgrade) {
    failing_.DropCatalog();
    ZELOlderDocument older(failing_, ZELOlderTextOverCompleteCatalog(GetParam().document));
    older.Upgrade();
    ZELOlderDocument reopened(complete_, older.Text());

    const ZELTold told = Upgrade(reopened);

    EXPECT_EQ(told.status, S_OK);
    EXPECT_FALSE(told.stillNeeded);
    EXPECT_EQ(reopened.Coefficients(), GetParam().coefficients);
}

INSTANTIATE_TEST_SUITE_P(
    , ZELUpgradeMissingCatalog,
    testing::Values(FailingCatalog{"NewFeatures", "user_material_missing", "", {}, true, {S_OK}, {}, {}},
                    FailingCatalog{"Units",
                                   "units_not_converted",
                                   "",
                                   {},
                                   true,
                                   {S_OK},
                                   {{5e5, 1e5, 2e-8, 293.15}, {4e5, 8e4, 2.5e-8, 353.15}},
                                   {}},
                    FailingCatalog{"OldContainer",
                                   "old_container_hyperelastic_on",
                                   "",
                                   {},
                                   true,
                                   {S_OK},
                                   {{5e5, 1e5, 2e-8, 293.15}, {4e5, 8e4, 2.5e-8, 353.15}},
                                   {}}),
    [](const auto& test) { return std::string(test.param.name); });

}  // namespace
