#include "platform/store/KORUndoLog.h"

#include <memory>

#include "KORTestDocument.h"
#include "framework/KORDictionary.h"
#include "framework/KORTie.h"

namespace {

inline const KORIID IID_KORISeen = KORName::Intern("KORISeen");

/// An extension of the test's late type that remembers what it saw when it was built.
class KORISeen : public KORInterface<IID_KORISeen> {
public:
    virtual double Length() = 0;

protected:
    ~KORISeen() = default;
};
using KORISeen_var = KORVar<KORISeen>;

class KORESeen final : public KORBaseUnknown {
    KORDeclareClass

public:
    KORESeen() {
        const auto access = KORISpecAttrAccess_var::Of(static_cast<KORBaseUnknown*>(this));
        length_ = access->GetDouble(KORName::Intern("Length"), 0);
    }
    double Length() const { return length_; }

private:
    double length_ = 0.0;
};
KORImplementClass(KORESeen, KORClassKind::DataExtension, "KORTestLT", "KORTestModule")

KORBaseUnknown* KORESeen::CreateItself() {
    return new KORESeen;
}

class TIEKORISeen final : public KORTie<KORISeen, KORESeen> {
public:
    using KORTie::KORTie;
    double Length() override { return Called(__func__)->Length(); }
};
const KORFillDictionary seenEntry(KORESeen::MetaObject(), KORISeen::MetaObject(), &KORCreateTie<TIEKORISeen>,
                                  nullptr, 1);

class KORUndoLogTest : public KORTestDocument {
protected:
    /// One committed step that sets the length.
    void SetLength(double value, const char* name = "Set the length") {
        KORStep step(*document, name);
        feature->SetDouble(length, value, 0);
        step.Commit();
    }

    const KORVar<KORFeature> feature = NewFeature();
    KORUndoLog& log = document->Log();
};

TEST_F(KORUndoLogTest, HasNothingToUndoAtFirst) {
    EXPECT_FALSE(document->CanUndo());
    EXPECT_FALSE(document->CanRedo());
    EXPECT_FALSE(document->Undo());
    EXPECT_FALSE(document->Redo());
    EXPECT_EQ(0u, document->Generation());
}

TEST_F(KORUndoLogTest, UndoesAndRedoesAWriteOfEveryKind) {
    const auto child = NewFeature();
    {
        KORStep step(*document, "Edit");
        feature->SetBoolean(flag, false, 0);
        feature->SetInteger(count, 8, 0);
        feature->SetDouble(length, 2.5, 0);
        feature->SetString(text, "abc", 0);
        feature->SetListOfDouble(numbers, KORNumbers({1.0}));
        feature->SetComponent(other, child.Get(), 0);
        feature->AppendComponent(others, child.Get());
        feature->SetAlias("alias");
        step.Commit();
    }

    EXPECT_TRUE(document->Undo());

    EXPECT_TRUE(feature->GetBoolean(flag, 0));
    EXPECT_EQ(7, feature->GetInteger(count, 0));
    EXPECT_EQ(1.5, feature->GetDouble(length, 0));
    EXPECT_EQ(KORUnicodeString(""), feature->GetString(text, 0));
    EXPECT_EQ(nullptr, feature->GetListOfDouble(numbers));
    EXPECT_EQ(nullptr, feature->GetComponent(other, 0));
    EXPECT_EQ(nullptr, feature->GetListOfComponents(others));
    EXPECT_EQ(KORUnicodeString(""), feature->GetAlias());

    EXPECT_TRUE(document->Redo());

    EXPECT_FALSE(feature->GetBoolean(flag, 0));
    EXPECT_EQ(8, feature->GetInteger(count, 0));
    EXPECT_EQ(2.5, feature->GetDouble(length, 0));
    EXPECT_EQ(KORUnicodeString("abc"), feature->GetString(text, 0));
    EXPECT_EQ(1, feature->GetListSize(numbers));
    EXPECT_EQ(child.Get(), KORBaseUnknown_var::Adopt(feature->GetComponent(other, 0)).Get());
    EXPECT_EQ(1, feature->GetListSize(others));
    EXPECT_EQ(KORUnicodeString("alias"), feature->GetAlias());
}

TEST_F(KORUndoLogTest, UndoesACreationAndBringsTheFeatureBackWithItsValues) {
    std::uint32_t number = 0;
    {
        KORStep step(*document, "Create");
        const auto created = NewFeature("Created");
        created->SetDouble(length, 9.5, 0);
        number = created->Number();
        step.Commit();
    }
    EXPECT_EQ(2u, document->FeatureCount());

    document->Undo();
    EXPECT_EQ(1u, document->FeatureCount());
    ASSERT_NE(nullptr, document->Features().Find(number));
    EXPECT_FALSE(document->Features().Find(number)->LiesInContainer());

    document->Redo();
    EXPECT_EQ(2u, document->FeatureCount());
    EXPECT_EQ(9.5, document->Features().Find(number)->GetDouble(length, 0));
    EXPECT_EQ(KORUnicodeString("Created"), document->Features().Find(number)->GetName());
    EXPECT_TRUE(document->Features().Find(number)->LiesInContainer());
}

TEST_F(KORUndoLogTest, KeepsACreationAsOneEntryWhicheverAttributesAreWritten) {
    KORStep step(*document, "Create");

    const auto created = NewFeature("Created");
    created->SetDouble(length, 9.5, 0);
    created->AppendComponent(others, feature.Get());

    ASSERT_EQ(1u, log.OpenEntries().size());
    EXPECT_EQ(created, log.OpenEntries()[0].feature);
    EXPECT_STREQ("Container", log.OpenEntries()[0].AttributeName());
}

TEST_F(KORUndoLogTest, KeepsTheAliasOfANewFeatureBesideItsCreation) {
    KORVar<KORFeature> created;
    {
        KORStep step(*document, "Create");
        created = NewFeature("Created");
        created->SetAlias("new");

        ASSERT_EQ(2u, log.OpenEntries().size());
        EXPECT_STREQ("Container", log.OpenEntries()[0].AttributeName());
        EXPECT_STREQ("Alias", log.OpenEntries()[1].AttributeName());
        step.Commit();
    }
    document->Undo();
    EXPECT_FALSE(created->LiesInContainer());
    EXPECT_EQ(KORUnicodeString(), created->GetAlias());

    document->Redo();
    EXPECT_TRUE(created->LiesInContainer());
    EXPECT_EQ(KORUnicodeString("new"), created->GetAlias());
}

TEST_F(KORUndoLogTest, UndoesTheRemovalOfAFeature) {
    {
        KORStep step(*document, "Remove");
        EXPECT_EQ(S_OK, document->Remove(feature.Get()));
        step.Commit();
    }
    EXPECT_EQ(0u, document->FeatureCount());

    document->Undo();
    EXPECT_EQ(1u, document->FeatureCount());
    EXPECT_EQ(container.Get(), KORBaseUnknown_var::Adopt(feature->GetFeatContainer()).Get());

    document->Redo();
    EXPECT_EQ(0u, document->FeatureCount());
    EXPECT_EQ(nullptr, feature->GetFeatContainer());
}

TEST_F(KORUndoLogTest, UndoesAMoveToAnotherContainer) {
    const auto second = KORVar<KORMemoryContainer>::Adopt(new KORMemoryContainer(*document));
    {
        KORStep step(*document, "Move");
        feature->SetContainer(second.Get());
        step.Commit();
    }
    EXPECT_EQ(1u, document->FeatureCount());
    EXPECT_EQ(second.Get(), KORBaseUnknown_var::Adopt(feature->GetFeatContainer()).Get());

    document->Undo();

    EXPECT_EQ(container.Get(), KORBaseUnknown_var::Adopt(feature->GetFeatContainer()).Get());
    EXPECT_EQ(1u, document->FeatureCount());
}

TEST_F(KORUndoLogTest, UndoesListAppendsBackToTheListBeforeTheStep) {
    feature->AppendComponent(others, feature.Get());
    {
        KORStep step(*document, "Append");
        feature->AppendComponent(others, nullptr);
        feature->AppendComponent(others, nullptr);
        EXPECT_EQ(1u, log.OpenEntries().size());
        step.Commit();
    }
    EXPECT_EQ(3, feature->GetListSize(others));

    document->Undo();
    EXPECT_EQ(1, feature->GetListSize(others));
    EXPECT_EQ(feature.Get(), KORBaseUnknown_var::Adopt(feature->GetComponent(others, 1)).Get());

    document->Redo();
    EXPECT_EQ(3, feature->GetListSize(others));
}

TEST_F(KORUndoLogTest, UndoesEmptyingAndForgettingAList) {
    feature->SetListOfDouble(numbers, KORNumbers({1.0, 2.0}));
    {
        KORStep step(*document, "Forget");
        feature->RemoveAllValues(numbers);
        feature->RemoveValue(numbers);
        step.Commit();
    }
    EXPECT_EQ(nullptr, feature->GetListOfDouble(numbers));

    document->Undo();

    EXPECT_EQ(2, feature->GetListSize(numbers));
}

TEST_F(KORUndoLogTest, UndoesStepByStepAndRedoesInOrder) {
    SetLength(2.0);
    SetLength(3.0);

    document->Undo();
    EXPECT_EQ(2.0, feature->GetDouble(length, 0));
    document->Undo();
    EXPECT_EQ(1.5, feature->GetDouble(length, 0));
    EXPECT_FALSE(document->CanUndo());
    document->Redo();
    EXPECT_EQ(2.0, feature->GetDouble(length, 0));
    document->Redo();
    EXPECT_EQ(3.0, feature->GetDouble(length, 0));
    EXPECT_FALSE(document->CanRedo());
}

TEST_F(KORUndoLogTest, RollsBackAScopeThatIsLeftWithoutCommit) {
    std::uint32_t number = 0;
    {
        const KORStep step(*document, "Abandoned");
        feature->SetDouble(length, 2.5, 0);
        feature->SetDouble(length, 3.5, 0);
        feature->SetAlias("alias");
        number = NewFeature()->Number();
    }
    EXPECT_EQ(1.5, feature->GetDouble(length, 0));
    EXPECT_EQ(KORUnicodeString(""), feature->GetAlias());
    EXPECT_EQ(nullptr, document->Features().Find(number));
    EXPECT_EQ(1u, document->FeatureCount());
    EXPECT_FALSE(document->CanUndo());
    EXPECT_EQ(2, feature->References());
}

TEST_F(KORUndoLogTest, KeepsOneEntryPerSlotAndScope) {
    KORStep step(*document, "Edit");

    for (const double value : {2.0, 3.0, 4.0}) feature->SetDouble(length, value, 0);
    feature->SetInteger(count, 1, 0);

    ASSERT_EQ(2u, log.OpenEntries().size());
    EXPECT_EQ(1.5, log.OpenEntries()[0].other.Double());
    EXPECT_STREQ("Length", log.OpenEntries()[0].AttributeName());
    EXPECT_EQ(1u, log.OpenEntries()[0].feature->Number());
    EXPECT_STREQ("Count", log.OpenEntries()[1].AttributeName());
}

TEST_F(KORUndoLogTest, HandsACommittedInnerScopeToTheOuterOne) {
    {
        KORStep outer(*document, "Outer");
        feature->SetDouble(length, 2.0, 0);
        {
            KORStep inner(*document, "Inner");
            feature->SetDouble(length, 3.0, 0);
            feature->SetInteger(count, 1, 0);
            inner.Commit();
        }
        feature->SetDouble(length, 4.0, 0);
        EXPECT_FALSE(document->CanUndo());
        outer.Commit();
    }
    ASSERT_EQ(1u, log.Steps().size());
    EXPECT_EQ("Outer", log.Steps()[0].name);

    document->Undo();
    EXPECT_EQ(1.5, feature->GetDouble(length, 0));
    EXPECT_EQ(7, feature->GetInteger(count, 0));

    document->Redo();
    EXPECT_EQ(4.0, feature->GetDouble(length, 0));
    EXPECT_EQ(1, feature->GetInteger(count, 0));
}

TEST_F(KORUndoLogTest, RollsAnInnerScopeBackAndGoesOnWithTheOuterOne) {
    {
        KORStep outer(*document, "Outer");
        feature->SetDouble(length, 2.0, 0);
        {
            const KORStep inner(*document, "Inner");
            feature->SetDouble(length, 3.0, 0);
            feature->SetInteger(count, 1, 0);
        }
        EXPECT_EQ(2.0, feature->GetDouble(length, 0));
        EXPECT_EQ(7, feature->GetInteger(count, 0));
        feature->SetDouble(length, 4.0, 0);
        EXPECT_EQ(1u, log.OpenEntries().size());
        outer.Commit();
    }
    document->Undo();
    EXPECT_EQ(1.5, feature->GetDouble(length, 0));
}

TEST_F(KORUndoLogTest, RollsACommittedInnerScopeBackWithTheOuterOne) {
    {
        const KORStep outer(*document, "Outer");
        {
            KORStep inner(*document, "Inner");
            feature->SetDouble(length, 3.0, 0);
            inner.Commit();
        }
    }
    EXPECT_EQ(1.5, feature->GetDouble(length, 0));
    EXPECT_FALSE(document->CanUndo());
}

TEST_F(KORUndoLogTest, RollsAnInnerScopeBackOverAFeatureThatTheOuterOneCreated) {
    KORStep outer(*document, "Outer");
    const auto created = NewFeature();
    created->SetDouble(length, 2.0, 0);
    {
        const KORStep inner(*document, "Inner");
        created->SetDouble(length, 3.0, 0);
    }
    EXPECT_EQ(2.0, created->GetDouble(length, 0));
    EXPECT_TRUE(created->LiesInContainer());
}

TEST_F(KORUndoLogTest, ForgetsRedoStepsWhenANewOneIsCommitted) {
    SetLength(2.0, "First");
    SetLength(3.0, "Second");
    document->Undo();

    SetLength(5.0, "Third");

    ASSERT_EQ(2u, log.Steps().size());
    EXPECT_EQ("First", log.Steps()[0].name);
    EXPECT_EQ("Third", log.Steps()[1].name);
    EXPECT_FALSE(document->CanRedo());
    document->Undo();
    EXPECT_EQ(2.0, feature->GetDouble(length, 0));
}

TEST_F(KORUndoLogTest, LetsAnUndoneCreationGoWhenItCannotBeRedone) {
    {
        KORStep step(*document, "Create");
        NewFeature();
        step.Commit();
    }
    document->Undo();
    EXPECT_NE(nullptr, document->Features().Find(2));

    SetLength(2.0);

    EXPECT_EQ(nullptr, document->Features().Find(2));
}

TEST_F(KORUndoLogTest, KeepsRedoStepsOverStepsThatChangeNothing) {
    SetLength(2.0);
    document->Undo();

    {
        KORStep empty(*document, "Nothing");
        feature->SetDouble(length, 1.5, 0);
        empty.Commit();
    }
    {
        const KORStep rolledBack(*document, "Look");
        feature->SetDouble(length, 8.0, 0);
    }

    EXPECT_EQ(0u, log.Done());
    ASSERT_TRUE(document->CanRedo());
    document->Redo();
    EXPECT_EQ(2.0, feature->GetDouble(length, 0));
}

TEST_F(KORUndoLogTest, DoesNotLogWritesOutsideAStep) {
    feature->SetDouble(length, 2.0, 0);
    feature->SetAlias("alias");

    EXPECT_FALSE(document->CanUndo());
    EXPECT_EQ(2.0, feature->GetDouble(length, 0));
    EXPECT_EQ((std::vector<std::uint32_t>{1}), document->Features().Dirty());
}

TEST_F(KORUndoLogTest, RefusesUndoAndRedoWhileAStepStandsOpen) {
    SetLength(2.0);
    SetLength(3.0);
    document->Undo();
    const KORStep open(*document, "Open");

    EXPECT_FALSE(document->CanUndo());
    EXPECT_FALSE(document->CanRedo());
    EXPECT_FALSE(document->Undo());
    EXPECT_FALSE(document->Redo());
    EXPECT_EQ(2.0, feature->GetDouble(length, 0));
}

TEST_F(KORUndoLogTest, RaisesTheGenerationWithUndoRedoAndRollbackOnly) {
    SetLength(2.0);
    EXPECT_EQ(0u, document->Generation());
    document->Undo();
    EXPECT_EQ(1u, document->Generation());
    document->Redo();
    EXPECT_EQ(2u, document->Generation());
    {
        const KORStep step(*document, "Abandoned");
        feature->SetDouble(length, 9.0, 0);
    }
    EXPECT_EQ(3u, document->Generation());
    { const KORStep step(*document, "Nothing"); }
    EXPECT_EQ(3u, document->Generation());
}

TEST_F(KORUndoLogTest, MakesTheNextQueryBuildAFreshExtension) {
    SetLength(2.0);
    const auto before = KORISeen_var::Of(feature.Get());
    EXPECT_EQ(2.0, before->Length());
    EXPECT_EQ(before, KORISeen_var::Of(feature.Get()));

    document->Undo();
    const auto after = KORISeen_var::Of(feature.Get());

    EXPECT_EQ(2.0, before->Length());
    EXPECT_EQ(1.5, after->Length());
}

TEST_F(KORUndoLogTest, LeavesOutdatedExtensionsOutdatedWhenTheDocumentIsClosed) {
    SetLength(2.0);
    const auto before = KORISeen_var::Of(feature.Get());
    document->Undo();
    const auto after = KORISeen_var::Of(feature.Get());
    ASSERT_NE(before, after);

    document->Close();

    EXPECT_EQ(after, KORISeen_var::Of(feature.Get()));
    EXPECT_EQ(1.5, KORISeen_var::Of(before.Get())->Length());
}

TEST_F(KORUndoLogTest, RollsBackAnOpenStepInWhichItWasCleared) {
    SetLength(2.0);
    {
        const KORStep step(*document, "Abandoned");
        feature->SetDouble(length, 3.0, 0);
        {
            KORStep inner(*document, "Inner");
            feature->SetInteger(count, 8, 0);
            log.Clear();
            feature->SetDouble(length, 4.0, 0);
            inner.Commit();
        }
        feature->SetDouble(length, 5.0, 0);
    }

    EXPECT_EQ(2.0, feature->GetDouble(length, 0));
    EXPECT_EQ(7, feature->GetInteger(count, 0));
    EXPECT_TRUE(log.Steps().empty());
    EXPECT_TRUE(log.OpenEntries().empty());
}

TEST_F(KORUndoLogTest, RemembersTheOpenStepInWhichItWasClearedAsItsFirst) {
    SetLength(2.0);
    {
        KORStep step(*document, "Kept");
        feature->SetDouble(length, 3.0, 0);
        log.Clear();
        step.Commit();
    }

    ASSERT_EQ(1u, log.Steps().size());
    EXPECT_EQ("Kept", log.Steps()[0].name);
    EXPECT_TRUE(document->Undo());
    EXPECT_EQ(2.0, feature->GetDouble(length, 0));
    EXPECT_FALSE(document->Undo());
}

TEST_F(KORUndoLogTest, CostsOneEntryForOneScalarHoweverLargeTheDocument) {
    for (int i = 0; i < 5000; ++i) NewFeature();
    document->Features().Clean();

    SetLength(2.0);

    ASSERT_EQ(1u, log.Steps().size());
    EXPECT_EQ(1u, log.Steps()[0].entries.size());
    EXPECT_EQ(1u, document->Features().Dirty().size());
    document->Undo();
    EXPECT_EQ(1u, document->Features().Dirty().size());
}

TEST_F(KORUndoLogTest, SharesListsInsteadOfCopyingThem) {
    const KORRawColldouble before = KORNumbers({1.0, 2.0});
    feature->SetListOfDouble(numbers, before);
    {
        KORStep step(*document, "Edit");
        feature->SetListOfDouble(numbers, KORNumbers({3.0}));
        step.Commit();
    }

    document->Undo();

    const std::unique_ptr<KORRawColldouble> read(feature->GetListOfDouble(numbers));
    EXPECT_EQ(before.Data(), read->Data());
}

TEST_F(KORUndoLogTest, GivesReferencesBackWhenItIsCleared) {
    const auto child = NewFeature();
    const auto before = child->References();
    {
        KORStep step(*document, "Edit");
        feature->SetComponent(other, child.Get(), 0);
        feature->SetComponent(other, nullptr, 0);
        child->SetAlias("alias");
        step.Commit();
    }
    EXPECT_EQ(before + 1, child->References());

    log.Clear();

    EXPECT_EQ(before, child->References());
    EXPECT_FALSE(document->CanUndo());
    EXPECT_EQ(KORUnicodeString("alias"), child->GetAlias());
}

TEST_F(KORUndoLogTest, SurvivesThatItsDocumentIsClosedInsideAStep) {
    {
        const KORStep step(*document, "Close");
        feature->SetDouble(length, 2.0, 0);
        document->Close();
    }
    EXPECT_FALSE(document->CanUndo());
    EXPECT_EQ(0.0, feature->GetDouble(length, 0));
}

TEST_F(KORUndoLogTest, NumbersItsStepsAndNeverGivesANumberAgain) {
    SetLength(2.0);
    SetLength(3.0);
    document->Undo();
    SetLength(4.0);

    ASSERT_EQ(2u, log.Steps().size());
    EXPECT_EQ(1u, log.Steps()[0].number);
    EXPECT_EQ(3u, log.Steps()[1].number);
    EXPECT_EQ(3u, log.LastNumber());
}

TEST_F(KORUndoLogTest, TellsWhichStepsHaveChangedSinceTheyWereSaved) {
    const auto changed = [&] {
        std::vector<bool> each;
        for (const KORUndoStep& step : log.Steps()) each.push_back(step.changed);
        return each;
    };
    SetLength(2.0);
    SetLength(3.0);
    EXPECT_EQ((std::vector<bool>{true, true}), changed());
    log.Saved();
    EXPECT_EQ((std::vector<bool>{false, false}), changed());

    document->Undo();
    EXPECT_EQ((std::vector<bool>{false, true}), changed());
    log.Saved();
    document->Redo();
    EXPECT_EQ((std::vector<bool>{false, true}), changed());
    log.Saved();
    SetLength(4.0);
    EXPECT_EQ((std::vector<bool>{false, false, true}), changed());
}

TEST_F(KORUndoLogTest, ForgetsTheOldestStepsAndUndoesTheOthers) {
    for (const double value : {2.0, 3.0, 4.0}) SetLength(value);
    document->Undo();

    log.DropOldest(1);

    EXPECT_EQ(2u, log.Steps().size());
    EXPECT_EQ(1u, log.Done());
    EXPECT_TRUE(document->Undo());
    EXPECT_EQ(2.0, feature->GetDouble(length, 0));
    EXPECT_FALSE(document->Undo());
    EXPECT_TRUE(document->Redo());
    EXPECT_TRUE(document->Redo());
    EXPECT_EQ(4.0, feature->GetDouble(length, 0));
}

TEST_F(KORUndoLogTest, GivesBackTheFeaturesOfStepsThatItForgets) {
    auto gone = NewFeature();
    {
        KORStep step(*document, "Remove");
        document->Remove(gone.Get());
        step.Commit();
    }
    const std::uint32_t number = gone->Number();
    gone = nullptr;
    ASSERT_NE(nullptr, document->Features().Find(number));

    log.DropOldest(1);

    EXPECT_EQ(nullptr, document->Features().Find(number));
}

TEST_F(KORUndoLogTest, TakesOverTheStepsThatADocumentBringsAlong) {
    const KORSlot slot = layout->Find(length).slot;
    const auto step = [&](const char* name, double value, std::uint32_t number) {
        KORUndoStep made{name, {}, number, false};
        made.entries.Append(*feature, slot, KORValue::OfDouble(value));
        return made;
    };
    feature->SetDouble(length, 3.0, 0);
    std::vector<KORUndoStep> steps;
    steps.push_back(step("to 3", 2.0, 5));
    steps.push_back(step("to 4", 4.0, 8));

    log.Restore(std::move(steps), 1, 9);

    EXPECT_EQ(1u, log.Done());
    EXPECT_EQ(9u, log.LastNumber());
    EXPECT_TRUE(document->Redo());
    EXPECT_EQ(4.0, feature->GetDouble(length, 0));
    EXPECT_TRUE(document->Undo());
    EXPECT_TRUE(document->Undo());
    EXPECT_EQ(2.0, feature->GetDouble(length, 0));
    SetLength(7.0);
    EXPECT_EQ(10u, log.Steps().back().number);
}

}  // namespace
