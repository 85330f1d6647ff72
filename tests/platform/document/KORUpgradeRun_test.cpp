#include "platform/document/KORUpgradeRun.h"

#include "KORTestDocument.h"
#include "framework/KORDictionary.h"
#include "interfaces/KORIMaterialFeature.h"
#include "interfaces/TIEKORISamUpgrade.h"

namespace {

const KORName* const kState = KORName::Intern("State");
const KORName* const kPart = KORName::Intern("Part");
constexpr const char* kLateType = "KORUpgradeTestLT";
constexpr const char* kHung = "Data";

KORLayoutHandle UpgradeLayout() {
    static const KORLayoutHandle layout = [] {
        std::vector<KORAttribute> attributes;
        attributes.push_back({kState, KORValue::OfString("")});
        attributes.push_back({KORName::Intern("Father"), KORValue(KORAttributeKind::Component), true});
        attributes.push_back({kPart, KORValue(KORAttributeKind::Component)});
        return std::make_shared<KORLayout>(KORName::Intern(kLateType), std::move(attributes));
    }();
    return layout;
}

/// Upgrades features as their "State" says: "old", "failing", "stubborn" and "misplaced" need it.
class KORUpgradeTest final : public KORBaseUnknown {
    KORDeclareClass

    bool IsUpgradeNeeded() { return !Own()->GetString(kState, 0).empty(); }

    HRESULT Upgrade() {
        const auto own = Own();
        const KORUnicodeString state = own->GetString(kState, 0);
        if (state != "stubborn") own->SetString(kState, "", 0);
        if (state == "failing") return E_FAIL;
        if (state == "misplaced") return Move(*own);
        const KORIFeatureContainer_var container(KORBaseUnknown_var::Adopt(own->GetFeatContainer()));
        own->SetComponent(kPart, container->NewFeature(UpgradeLayout(), "Part").Get(), 0);
        return S_OK;
    }

private:
    KORVar<KORFeature> Own() { return KORVar<KORFeature>::Of(this); }

    static HRESULT Move(KORFeature& own) {
        const auto father = KORISpecObject_var::Adopt(own.GetFather());
        const auto target = KORBaseUnknown_var::Adopt(father->GetFeatContainer());
        const auto moved = KORFeature::NewCopy(own, *target);
        own.SetContainer(nullptr);
        return KORIMaterialFeature_var(father)->SetApplicativeFeature(kHung, moved.Get());
    }
};

KORImplementClass(KORUpgradeTest, KORClassKind::DataExtension, "KORUpgradeTestLT", "KORTest")

KORBaseUnknown* KORUpgradeTest::CreateItself() {
    return new KORUpgradeTest;
}

const KORFillDictionary entry(KORUpgradeTest::MetaObject(), KORISamUpgrade::MetaObject(),
                              KORCreateTie<TIEKORISamUpgrade<KORUpgradeTest>>, nullptr, 1);

class KORUpgradeRunTest : public KORTestDocument {
protected:
    KORVar<KORFeature> NewMaterial(const char* state) {
        auto material = KORFeature::New(*document, UpgradeLayout(), "Material", *container);
        material->SetString(kState, state, 0);
        return material;
    }
    KORUpgradeReport Run() { return KORRunUpgrade(*document, kLateType, kHung); }

    /// "number attribute" of every change.
    static std::vector<std::string> ChangesOf(const KORUpgradedFeature& upgraded) {
        std::vector<std::string> changes;
        for (const auto& change : upgraded.changes) {
            changes.push_back(std::to_string(change.feature) + " " + change.attribute);
        }
        return changes;
    }
    using Changes = std::vector<std::string>;
    using Numbers = std::vector<std::uint32_t>;
};

TEST_F(KORUpgradeRunTest, LeavesADocumentAloneThatNeedsNone) {
    NewMaterial("");
    NewFeature();

    const KORUpgradeReport report = Run();

    EXPECT_EQ(1u, report.asked);
    EXPECT_TRUE(report.upgraded.empty());
    EXPECT_FALSE(document->CanUndo());
    EXPECT_EQ(0u, document->Generation());
}

TEST_F(KORUpgradeRunTest, AsksNoFeaturesThatKnowNoUpgrade) {
    NewFeature();

    const KORUpgradeReport report = KORRunUpgrade(*document, "KORTestLT", kHung);

    EXPECT_EQ(0u, report.asked);
}

TEST_F(KORUpgradeRunTest, TellsWhatChangedOnWhichFeature) {
    const auto old = NewMaterial("old");
    old->SetAlias("Steel");

    const KORUpgradeReport report = Run();

    ASSERT_EQ(1u, report.upgraded.size());
    const KORUpgradedFeature& told = report.upgraded[0];
    EXPECT_EQ(1u, told.feature);
    EXPECT_EQ(0u, told.replacement);
    EXPECT_EQ(KORUnicodeString("Steel"), told.name);
    EXPECT_EQ(S_OK, told.status);
    EXPECT_FALSE(told.stillNeeded);
    EXPECT_EQ((Changes{"1 State", "2 Container", "1 Part"}), ChangesOf(told));
    EXPECT_EQ(KORUnicodeString(kLateType), told.changes[0].lateType);
    EXPECT_EQ(Numbers{}, told.unlisted);
}

TEST_F(KORUpgradeRunTest, IsUndoneAsOneStep) {
    const auto one = NewMaterial("old");
    const auto two = NewMaterial("old");

    Run();
    ASSERT_EQ(1u, document->Log().Steps().size());
    EXPECT_EQ("Upgrade", document->Log().Steps()[0].name);
    EXPECT_TRUE(document->Undo());

    EXPECT_EQ(KORUnicodeString("old"), one->GetString(kState, 0));
    EXPECT_EQ(KORUnicodeString("old"), two->GetString(kState, 0));
    EXPECT_EQ(2u, document->FeatureCount());
}

TEST_F(KORUpgradeRunTest, KeepsWhatAFailedUpgradeDidAndGoesOn) {
    NewMaterial("failing");
    const auto next = NewMaterial("old");

    const KORUpgradeReport report = Run();

    ASSERT_EQ(2u, report.upgraded.size());
    EXPECT_EQ(E_FAIL, report.upgraded[0].status);
    EXPECT_EQ((Changes{"1 State"}), ChangesOf(report.upgraded[0]));
    EXPECT_EQ(KORUnicodeString("Material"), report.upgraded[0].name);
    EXPECT_EQ(S_OK, report.upgraded[1].status);
    EXPECT_EQ(KORUnicodeString(""), next->GetString(kState, 0));
}

TEST_F(KORUpgradeRunTest, TellsWhoStillNeedsAnUpgradeAfterwards) {
    NewMaterial("stubborn");

    const KORUpgradeReport report = Run();

    ASSERT_EQ(1u, report.upgraded.size());
    EXPECT_TRUE(report.upgraded[0].stillNeeded);
}

TEST_F(KORUpgradeRunTest, NamesWhatNothingListsAnyMore) {
    const auto one = NewMaterial("old");
    const auto two = NewMaterial("old");
    one->SetComponent(kPart, NewFeature().Get(), 0);  // 3
    two->SetComponent(kPart, NewFeature().Get(), 0);  // 4
    NewFeature();                                     // 5: was never listed

    const KORUpgradeReport report = Run();

    ASSERT_EQ(2u, report.upgraded.size());
    EXPECT_EQ((Numbers{3}), report.upgraded[0].unlisted);
    EXPECT_EQ((Numbers{4}), report.upgraded[1].unlisted);
}

TEST_F(KORUpgradeRunTest, AsksWhatHangsInThePlaceOfAFeatureThatMoved) {
    const auto old = document->AddContainer("Old");
    const auto steel = document->NewPlatformFeature("KORMaterialLT", "Steel");  // 1
    steel->SetAlias("S235");
    const auto data = KORFeature::New(*document, UpgradeLayout(), "Data", *old);                // 2
    EXPECT_EQ(S_OK, KORIMaterialFeature_var(steel)->SetApplicativeFeature(kHung, data.Get()));  // entry 3
    data->SetString(kState, "misplaced", 0);
    data->SetComponent(kPart, KORFeature::New(*document, layout, "Part", *old).Get(), 0);  // 4

    const KORUpgradeReport report = Run();

    ASSERT_EQ(1u, report.upgraded.size());
    EXPECT_EQ(1u, report.asked);
    EXPECT_EQ(KORUnicodeString("S235"), report.upgraded[0].name);
    EXPECT_EQ(2u, report.upgraded[0].feature);
    EXPECT_EQ(5u, report.upgraded[0].replacement);
    EXPECT_FALSE(report.upgraded[0].stillNeeded);
    EXPECT_EQ((Changes{"2 State", "5 Container", "2 Container", "2 Father", "3 Data"}),
              ChangesOf(report.upgraded[0]));
    EXPECT_EQ(Numbers{}, report.upgraded[0].unlisted);  // the copy lists the part
}

/// Writes down what it is asked and told, and refuses features of one alias.
class Watch final : public KORUpgradeWatch {
public:
    explicit Watch(const char* refused) : refused_(refused) {}

    bool MayUpgrade(KORFeature& feature, const KORUpgradedFeature& told) override {
        log.push_back("may " + std::to_string(told.feature) + " " + told.name.c_str());
        return feature.GetAlias() != refused_;
    }
    void Upgraded(KORFeature& now, const KORUpgradedFeature& told) override {
        log.push_back(std::to_string(told.feature) + " is " + std::to_string(now.Number()));
    }

    std::vector<std::string> log;

private:
    const char* refused_;
};

TEST_F(KORUpgradeRunTest, ShowsAWatchEveryUpgradeBeforeAndAfter) {
    NewMaterial("old")->SetAlias("Steel");
    NewMaterial("");
    NewMaterial("stubborn");
    Watch watch("none of these");

    const KORUpgradeReport report = KORRunUpgrade(*document, kLateType, kHung, &watch);

    EXPECT_EQ((std::vector<std::string>{"may 1 Steel", "1 is 1", "may 3 Material", "3 is 3"}), watch.log);
    EXPECT_FALSE(report.refused);
    EXPECT_EQ(2u, report.upgraded.size());
}

TEST_F(KORUpgradeRunTest, IsTakenBackWhenTheWatchRefusesOneOfThem) {
    const auto first = NewMaterial("old");
    const auto second = NewMaterial("old");
    const auto third = NewMaterial("old");
    second->SetAlias("Rubber");
    Watch watch("Rubber");

    const KORUpgradeReport report = KORRunUpgrade(*document, kLateType, kHung, &watch);

    EXPECT_TRUE(report.refused);
    EXPECT_EQ(3u, report.asked);
    EXPECT_TRUE(report.upgraded.empty());
    EXPECT_EQ("may 3 Material", watch.log[3]) << "the others are still asked";
    EXPECT_EQ(KORUnicodeString("old"), first->GetString(kState, 0));
    EXPECT_EQ(KORUnicodeString("old"), second->GetString(kState, 0));
    EXPECT_EQ(KORUnicodeString("old"), third->GetString(kState, 0));
    EXPECT_EQ(3u, document->FeatureCount());
    EXPECT_FALSE(document->CanUndo());
}

TEST_F(KORUpgradeRunTest, LeavesNoReferencesBehind) {
    const auto old = NewMaterial("old");

    Run();
    document->Log().Clear();

    EXPECT_EQ(2, old->References());
}

TEST_F(KORUpgradeRunTest, TakesThousandsOfFeatures) {
    for (int i = 0; i < 10000; ++i) NewMaterial("old");

    const KORUpgradeReport report = Run();

    EXPECT_EQ(10000u, report.upgraded.size());
    EXPECT_EQ(20000u, document->FeatureCount());
}

}  // namespace
