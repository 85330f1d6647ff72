// Scopes: what is one step, what is rolled back, and how scopes nest.

#include "KORUndoTest.h"

namespace {

using KORStepTest = KORUndoTest;

TEST_F(KORStepTest, RollsBackAScopeThatIsLeftWithoutCommit) {
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

TEST_F(KORStepTest, KeepsOneEntryPerSlotAndScope) {
    KORStep step(*document, "Edit");

    for (const double value : {2.0, 3.0, 4.0}) feature->SetDouble(length, value, 0);
    feature->SetInteger(count, 1, 0);

    ASSERT_EQ(2u, log.OpenEntries().size());
    EXPECT_EQ(1.5, log.OpenEntries()[0].other.Double());
    EXPECT_STREQ("Length", log.OpenEntries()[0].AttributeName());
    EXPECT_EQ(1u, log.OpenEntries()[0].feature->Number());
    EXPECT_STREQ("Count", log.OpenEntries()[1].AttributeName());
}

TEST_F(KORStepTest, HandsACommittedInnerScopeToTheOuterOne) {
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

TEST_F(KORStepTest, RollsAnInnerScopeBackAndGoesOnWithTheOuterOne) {
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

TEST_F(KORStepTest, RollsACommittedInnerScopeBackWithTheOuterOne) {
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

TEST_F(KORStepTest, RollsAnInnerScopeBackOverAFeatureThatTheOuterOneCreated) {
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

TEST_F(KORStepTest, RollsBackAnOpenStepInWhichItWasCleared) {
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

TEST_F(KORStepTest, RemembersTheOpenStepInWhichItWasClearedAsItsFirst) {
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

TEST_F(KORStepTest, SurvivesThatItsDocumentIsClosedInsideAStep) {
    {
        const KORStep step(*document, "Close");
        feature->SetDouble(length, 2.0, 0);
        document->Close();
    }
    EXPECT_FALSE(document->CanUndo());
    EXPECT_EQ(0.0, feature->GetDouble(length, 0));
}

}  // namespace
