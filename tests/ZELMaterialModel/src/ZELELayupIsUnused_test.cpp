#include <gmock/gmock.h>

#include "ZELMaterialModel/include/ZELILayup.h"
#include "framework/KORImplements.h"
#include "tests/ZELMaterialModel/ZELLayups.h"
#include "tests/support/ZELFaultSweep.h"
#include "tests/support/ZELStores.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr int kHomogeneous = 0;
constexpr int kComposite = 1;

/// A feature of a section's late type that is no section.
class NoSection final : public KORImplements<KORISpecObject> {
public:
    KORUnicodeString GetType() override { return "ZELShellSectionEnhLT"; }
    KORUnicodeString GetName() override { return "NoSection"; }
    KORBaseUnknown* GetFeatContainer() override { return nullptr; }
    KORISpecObject* Instantiate(const KORUnicodeString&, KORIContainer*) override { return nullptr; }
};

/// A property set with a layup in it.
struct Model {
    explicit Model(ZELTestStore& testStore) : store(testStore) {}

    KORISpecObject_var Section(int type, const KORISpecObject_var& of) {
        auto section = ZELMakeInSet(store, set, "ZELShellSectionEnhLT");
        SetWhole(section, "SectionType", type);
        Attach(section, "Layup", of);
        return section;
    }

    ZELTestStore& store;
    KORISpecObject_var set = ZELMakeEntity(store, "ZELZelmarPropertySetLT");
    KORISpecObject_var layup = ZELMakeInSet(store, set, "ZELLayupLT");
};

class ZELELayupIsUnused : public ZELStoreTest {
protected:
    bool IsUnused() { return ZELILayup_var(model_.layup)->IsUnused(); }

    Model model_{Store()};
};

}  // namespace

TEST_P(ZELELayupIsUnused, HoldsWithoutASection) {
    EXPECT_TRUE(IsUnused());
}

TEST_P(ZELELayupIsUnused, EndsWithACompositeSectionOfTheLayup) {
    model_.Section(kComposite, model_.layup);

    EXPECT_FALSE(IsUnused());
}

TEST_P(ZELELayupIsUnused, HoldsForASectionOfAnotherTypeThatReferencesTheLayup) {
    model_.Section(kHomogeneous, model_.layup);
    model_.Section(2, model_.layup);
    model_.Section(-1, model_.layup);

    EXPECT_TRUE(IsUnused());
}

TEST_P(ZELELayupIsUnused, HoldsForCompositeSectionsOfOtherLayups) {
    model_.Section(kComposite, ZELMakeInSet(Store(), model_.set, "ZELLayupLT"));
    model_.Section(kComposite, nullptr);

    EXPECT_TRUE(IsUnused());
}

TEST_P(ZELELayupIsUnused, LooksAtEverySection) {
    model_.Section(kHomogeneous, model_.layup);
    model_.Section(kComposite, ZELMakeInSet(Store(), model_.set, "ZELLayupLT"));
    model_.Section(kComposite, nullptr);
    model_.Section(kComposite, model_.layup);

    EXPECT_FALSE(IsUnused());
}

TEST_P(ZELELayupIsUnused, FollowsTheSectionsAsTheyChange) {
    const auto section = model_.Section(kComposite, model_.layup);

    SetWhole(section, "SectionType", kHomogeneous);
    EXPECT_TRUE(IsUnused());
    SetWhole(section, "SectionType", kComposite);
    EXPECT_FALSE(IsUnused());
    Attach(section, "Layup", nullptr);
    EXPECT_TRUE(IsUnused());
}

TEST_P(ZELELayupIsUnused, HoldsAtOnceForWhatHasASectionsTypeAndIsNone) {
    {
        const ZELUnrecorded unrecorded;
        KORISamAnalysisSet_var(model_.set)->AddChild(KORISpecObject_var::Adopt(new NoSection));
    }
    model_.Section(kComposite, model_.layup);

    EXPECT_TRUE(IsUnused()) << "the composite section comes after it";
}

TEST_P(ZELELayupIsUnused, EndsBeforeItComesToWhatIsNoSection) {
    model_.Section(kComposite, model_.layup);
    const ZELUnrecorded unrecorded;
    KORISamAnalysisSet_var(model_.set)->AddChild(KORISpecObject_var::Adopt(new NoSection));

    EXPECT_FALSE(IsUnused());
}

TEST_P(ZELELayupIsUnused, HoldsOutsideEverySet) {
    model_.layup = ZELMakeEntity(Store(), "ZELLayupLT");
    model_.Section(kComposite, model_.layup);

    EXPECT_TRUE(IsUnused());
}

TEST_P(ZELELayupIsUnused, LooksAtTheFirstOfSeveralSetsOnly) {
    const auto first = model_.set;
    model_.set = ZELMakeEntity(Store(), "ZELZelmarPropertySetLT");
    {
        const ZELUnrecorded unrecorded;
        KORISamAnalysisSet_var(model_.set)->AddChild(model_.layup);
    }
    model_.Section(kComposite, model_.layup);
    EXPECT_TRUE(IsUnused()) << "a section of the second set";

    model_.set = first;
    model_.Section(kComposite, model_.layup);
    EXPECT_FALSE(IsUnused());
}

TEST_P(ZELELayupIsUnused, LeavesNoReferenceBehind) {
    const auto section = model_.Section(kComposite, model_.layup);
    const long layups = References(model_.layup);
    const long sections = References(section);
    const long sets = References(model_.set);

    EXPECT_FALSE(IsUnused());

    EXPECT_EQ(References(model_.layup), layups);
    EXPECT_EQ(References(section), sections);
    EXPECT_EQ(References(model_.set), sets);
}

ZEL_ON_BOTH_STORES(ZELELayupIsUnused);

TEST(ZELELayupIsUnusedCalls, AskTheParentSetForItsShellSections) {
    ZELMapStore store;
    Model model(store);
    model.Section(kComposite, model.layup);
    model.Section(kComposite, model.layup);
    const ZELILayup_var layup = model.layup;
    store.Calls().ClearLog();

    layup->IsUnused();

    EXPECT_THAT(store.Calls().Log("GetParentSets"), ElementsAre("GetParentSets ZELLayupLT"));
    EXPECT_THAT(store.Calls().Log("GetFeatures"),
                ElementsAre("GetFeatures ZELZelmarPropertySetLT ZELShellSectionEnhLT"));
    EXPECT_THAT(store.Calls().Log("GetInteger"), ElementsAre("GetInteger ZELShellSectionEnhLT.SectionType"))
        << "the second section is not looked at";
}

TEST(ZELELayupIsUnusedCalls, AskForTheLayupOfCompositeSectionsOnly) {
    ZELMapStore store;
    Model model(store);
    model.Section(kHomogeneous, model.layup);
    const ZELILayup_var layup = model.layup;

    layup->IsUnused();

    EXPECT_THAT(store.Calls().Log("GetSpecObject"), IsEmpty());
}

TEST(ZELELayupIsUnusedCalls, HoldForALayupThatIsNoEntityAndForAParentThatIsNoSet) {
    for (const auto& [label, interface] :
         {std::pair("ZELLayupLT", "KORISamAnalysisEntity"), std::pair("ZELLayupLT", "KORISpecObject"),
          std::pair("ZELZelmarPropertySetLT", "KORISamAnalysisSet"),
          std::pair("ZELShellSectionEnhLT", "ZELIShellSection")}) {
        ZELMapStore store;
        Model model(store);
        model.Section(kComposite, model.layup);
        const ZELILayup_var layup = model.layup;
        EXPECT_FALSE(layup->IsUnused());
        store.Calls().RefuseInterface(label, interface);

        EXPECT_TRUE(layup->IsUnused()) << label << " " << interface;
    }
}

TEST(ZELELayupIsUnusedFaults, AnswerTrueWhicheverCallFails) {
    for (const ZELFault fault : {ZELFault::Refuse, ZELFault::SuccessWithNull, ZELFault::Throw}) {
        const int hits = ZELFaultSweep(fault, [](ZELFaultRun& run) {
            Model model(run.store);
            const auto section = model.Section(kComposite, model.layup);
            const ZELILayup_var layup = model.layup;
            const long layups = References(model.layup);
            const long sections = References(section);
            bool unused = false;

            run.Act([&] { unused = layup->IsUnused(); });

            EXPECT_EQ(unused, run.FaultHit() && !run.Threw());
            EXPECT_EQ(References(model.layup), layups);
            EXPECT_EQ(References(section), sections);
        });
        EXPECT_GT(hits, 5);
    }
}
