#include <memory>

#include "KORUndoTest.h"

namespace {

using KORUndoLogTest = KORUndoTest;

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

}  // namespace
