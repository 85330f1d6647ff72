#include "tests/ZELMaterialModel/src/ZELGasketElastic.h"

#include <gmock/gmock.h>

#include <limits>
#include <tuple>

#include "tests/ZELMaterialModel/ZELBareFeature.h"
#include "tests/support/ZELDiagnostics.h"
#include "tests/support/ZELStores.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

namespace {

/// Membrane and transverse shear, each over each store.
class ZELGasketElasticBehaviors
    : public testing::TestWithParam<std::tuple<ZELGasketElasticCase, ZELStoreChoice>> {
protected:
    const ZELGasketElasticCase& Case() const { return std::get<0>(GetParam()); }
    ZELTestStore& Store() { return *store_; }
    std::unique_ptr<ZELGasketElastic> Build() { return Case().make(tree_.material.Get()); }
    const KORISpecObject_var& Feature() { return tree_.*Case().feature; }
    const char* Key(std::size_t index) const { return Case().keys[index].second; }
    std::size_t FlagKey() const { return Case().keys.size() - 1; }

    /// What needs one of the first `keys` keys only answers, and nothing else does.
    void ExpectAnswersUpTo(ZELGasketElastic& behavior, std::size_t keys) {
        const auto expected = [keys](std::size_t lastKey) { return lastKey < keys ? S_OK : E_FAIL; };
        KORUnicodeString name("kept");
        unsigned char dependent = 7;
        unsigned char enabled = 7;
        ZELCftArrayZELCftArrayDouble table;
        EXPECT_EQ(behavior.SetDataFile("gasket.csv"), expected(0)) << keys;
        EXPECT_EQ(behavior.GetDataFile(name), expected(0)) << keys;
        EXPECT_EQ(name, keys > 0 ? "gasket.csv" : "kept");
        EXPECT_EQ(behavior.SetTempDepFlag(1), expected(1)) << keys;
        EXPECT_EQ(behavior.GetTempDepFlag(dependent), expected(1)) << keys;
        EXPECT_EQ(dependent, keys > 1 ? 1 : 7);
        EXPECT_EQ(behavior.SetDataArray(Case().rows), expected(FlagKey() - 1)) << keys;
        EXPECT_EQ(behavior.GetDataArray(table), expected(FlagKey() - 1)) << keys;
        EXPECT_EQ(ZELRowsOf(table), keys >= FlagKey() ? Case().rows : ZELRows());
        EXPECT_EQ(behavior.SetFlag(1), expected(FlagKey())) << keys;
        EXPECT_EQ(behavior.GetFlag(enabled), expected(FlagKey())) << keys;
        EXPECT_EQ(enabled, keys > FlagKey() ? 1 : 7);
    }

private:
    std::unique_ptr<ZELTestStore> store_ = std::get<1>(GetParam()).make();

protected:
    ZELFullMaterialTree tree_{*store_};
    ZELDiagnostics diagnostics_;
};

}  // namespace

TEST_P(ZELGasketElasticBehaviors, SetAndGetEverything) {
    const auto behavior = Build();

    ExpectAnswersUpTo(*behavior, Case().keys.size());

    EXPECT_EQ(GetText(Feature(), Key(0)), "gasket.csv");
    EXPECT_TRUE(GetFlag(Feature(), Key(1)));
    EXPECT_TRUE(GetFlag(Feature(), Key(FlagKey())));
    EXPECT_THAT(List(Feature(), Key(2)), Optional(ElementsAre(5e6, 4e6)));
    EXPECT_THAT(List(Feature(), Key(FlagKey() - 1)), Optional(ElementsAre(293.0, 373.0)));
    EXPECT_THAT(diagnostics_.Lines(), IsEmpty());
}

TEST_P(ZELGasketElasticBehaviors, StopAtTheFirstMissingKeyAndAnswerWhatTheyReachedBefore) {
    for (std::size_t keys = Case().keys.size(); keys-- > 0;) {
        Store().OmitAttribute(Case().keys[keys].first, Key(keys));
        const ZELFullMaterialTree tree(Store());
        const auto behavior = Case().make(tree.material.Get());

        ExpectAnswersUpTo(*behavior, keys);
    }
    EXPECT_THAT(diagnostics_.Lines(), IsEmpty());
}

TEST_P(ZELGasketElasticBehaviors, KeepTheColumnsBeforeAMissingOneWritten) {
    Store().OmitAttribute(Case().keys[3].first, Key(3));
    const ZELFullMaterialTree tree(Store());
    const auto behavior = Case().make(tree.material.Get());

    EXPECT_EQ(behavior->SetDataArray({{5e6, 0.3, 293.0}}), E_FAIL);

    EXPECT_THAT(List(tree.*Case().feature, Key(2)), Optional(ElementsAre(5e6)));
}

TEST_P(ZELGasketElasticBehaviors, ReportAMissingMaterial) {
    const auto behavior = Case().make(nullptr);

    EXPECT_THAT(diagnostics_.Lines(), ElementsAre("No material SpecObject !"));
    ExpectAnswersUpTo(*behavior, 0);
}

TEST_P(ZELGasketElasticBehaviors, ReportAMaterialWithoutAttributeAccess) {
    const auto bare = ZELMakeBareFeature();

    const auto behavior = Case().make(bare.Get());

    EXPECT_THAT(diagnostics_.Lines(), ElementsAre("Accessing ZELMaterial failed !"));
    ExpectAnswersUpTo(*behavior, 0);
}

TEST_P(ZELGasketElasticBehaviors, AnswerNothingWithoutAFeatureOfTheirOwn) {
    Attach(tree_.material, Case().component, ZELMakeBareFeature());
    ExpectAnswersUpTo(*Build(), 0);

    Attach(tree_.material, Case().component, nullptr);
    ExpectAnswersUpTo(*Build(), 0);

    Store().OmitAttribute("ZELMaterialLT", Case().component);
    const auto material = Store().Make("ZELMaterialLT");
    ExpectAnswersUpTo(*Case().make(material.Get()), 0);
    EXPECT_THAT(diagnostics_.Lines(), IsEmpty());
}

TEST_P(ZELGasketElasticBehaviors, ReportAnObjectThatIsNoFeature) {
    const auto object = KORBaseUnknown_var::Adopt(new KORBaseUnknown);
    ZELAttachObject(tree_.material, Case().component, object);

    const auto behavior = Build();

    EXPECT_THAT(diagnostics_.Lines(), ElementsAre(Case().noFeature));
    ExpectAnswersUpTo(*behavior, 0);
}

TEST_P(ZELGasketElasticBehaviors, StoreAnEmptyTableAsEmptyColumns) {
    const auto behavior = Build();
    behavior->SetFlag(1);
    ZELCftArrayZELCftArrayDouble table;

    EXPECT_EQ(behavior->SetDataArray({}), S_OK);

    for (std::size_t column = 2; column < FlagKey(); ++column) {
        EXPECT_THAT(List(Feature(), Key(column)), Optional(IsEmpty()));
    }
    EXPECT_EQ(behavior->GetDataArray(table), S_OK);
    EXPECT_EQ(table.size(), 0);
}

TEST_P(ZELGasketElasticBehaviors, AppendToTheCallersTable) {
    const auto behavior = Build();
    behavior->SetDataArray(Case().rows);
    auto table = ZELTableOf({{9.0}});

    EXPECT_EQ(behavior->GetDataArray(table), S_OK);

    EXPECT_EQ(ZELRowsOf(table), (ZELRows{{9.0}, Case().rows[0], Case().rows[1]}));
}

TEST_P(ZELGasketElasticBehaviors, RefuseColumnsThatDifferInLengthOrWereNeverValued) {
    const auto behavior = Build();
    auto table = ZELTableOf({{9.0}});
    EXPECT_EQ(behavior->GetDataArray(table), E_FAIL) << "never valued";

    behavior->SetDataArray(Case().rows);
    SetList(Feature(), Key(FlagKey() - 1), {293.0});
    EXPECT_EQ(behavior->GetDataArray(table), E_FAIL);

    SetList(Feature(), Key(FlagKey() - 1), {293.0, 373.0, 473.0});
    EXPECT_EQ(behavior->GetDataArray(table), E_FAIL);
    EXPECT_EQ(ZELRowsOf(table), (ZELRows{{9.0}}));
    EXPECT_THAT(diagnostics_.Lines(), IsEmpty());
}

TEST_P(ZELGasketElasticBehaviors, KeepNothingInMemory) {
    const auto behavior = Build();
    behavior->SetFlag(200);
    unsigned char enabled = 0;
    EXPECT_EQ(behavior->GetFlag(enabled), S_OK);
    EXPECT_EQ(enabled, 1) << "the store keeps 0 or 1";

    SetFlag(Feature(), Key(FlagKey()), false);

    EXPECT_EQ(behavior->GetFlag(enabled), S_OK);
    EXPECT_EQ(enabled, 0);
}

TEST_P(ZELGasketElasticBehaviors, HoldTheirFeaturesAndKeysAndGiveThemBack) {
    const ZELGasketHoldings before(tree_, Case().keys);
    {
        const auto behavior = Build();
        const ZELGasketHoldings held(tree_, Case().keys);
        EXPECT_EQ(held.material, before.material + 1);
        EXPECT_EQ(held.keys, before.keys + static_cast<long>(Case().keys.size()));
        EXPECT_EQ(References(Feature()), 5) << "container, parent, the test's tree, feature and access";
    }
    const ZELGasketHoldings after(tree_, Case().keys);
    EXPECT_EQ(after.material, before.material);
    EXPECT_EQ(after.keys, before.keys);
    EXPECT_EQ(References(Feature()), 3);
    EXPECT_EQ(KORModule::Of("ZELMaterialModel").LiveObjects(), 0);
}

TEST_P(ZELGasketElasticBehaviors, CopyWithoutTakingTheMaterialAndTheKeysThatTheCopyReleases) {
    const ZELGasketHoldings before(tree_, Case().keys);
    {
        const auto original = Build();
        ZELTakeForCopy(tree_, Case().keys);
        ZELTakeForCopy(tree_, Case().keys);
        const auto copy = original->Copy();
        const auto assigned = original->Assigned();
        ExpectAnswersUpTo(*copy, Case().keys.size());
        ExpectAnswersUpTo(*assigned, Case().keys.size());
        EXPECT_EQ(References(Feature()), 9) << "handles are counted";
    }
    const ZELGasketHoldings after(tree_, Case().keys);
    EXPECT_EQ(after.material, before.material);
    EXPECT_EQ(after.keys, before.keys);
    EXPECT_EQ(References(Feature()), 3);
    EXPECT_EQ(KORModule::Of("ZELMaterialModel").LiveObjects(), 0);
}

INSTANTIATE_TEST_SUITE_P(, ZELGasketElasticBehaviors,
                         testing::Combine(testing::ValuesIn(ZELGasketElasticCases()),
                                          testing::ValuesIn(ZELBothStores())),
                         [](const auto& choice) {
                             return std::string(std::get<0>(choice.param).thing) + "_" +
                                    std::get<1>(choice.param).name;
                         });
