// Features that undo, redo or a rollback took out of their container, in the hands of somebody who holds
// them.

#include <gmock/gmock.h>

#include "KORTestDocument.h"
#include "platform/store/KORUndoLog.h"

namespace {

class KORTakenAway : public KORTestDocument {
protected:
    /// Creates a feature of length 1.5 that references another, in a step.
    KORVar<KORFeature> CreateInStep(bool commit = true) {
        KORStep step(*document, "Create");
        auto created = NewFeature("Created");
        created->AppendComponent(others, feature.Get());
        created->SetAlias("new");
        if (commit) step.Commit();
        return created;
    }
    void WriteAll(KORFeature& written) {
        written.SetBoolean(flag, false, 0);
        written.SetInteger(count, 8, 0);
        written.SetDouble(length, 9.5, 0);
        written.SetString(text, "abc", 0);
        written.SetListOfDouble(numbers, KORNumbers({1.0}));
        written.SetComponent(other, feature.Get(), 0);
        written.AppendComponent(others, nullptr);
        written.SetAlias("later");
        written.SetUndeclared("Colour", KORValue::OfDouble(1.0));
    }
    void ExpectAsCreated(KORFeature& read) {
        EXPECT_TRUE(read.GetBoolean(flag, 0));
        EXPECT_EQ(7, read.GetInteger(count, 0));
        EXPECT_EQ(1.5, read.GetDouble(length, 0));
        EXPECT_EQ(KORUnicodeString(""), read.GetString(text, 0));
        EXPECT_EQ(nullptr, read.GetListOfDouble(numbers));
        EXPECT_EQ(nullptr, read.GetComponent(other, 0));
        EXPECT_EQ(1, read.GetListSize(others));
        read.ForEachUndeclared([](const auto& name, const auto&) { ADD_FAILURE() << name.c_str(); });
    }

    const KORVar<KORFeature> feature = NewFeature();
};

TEST_F(KORTakenAway, ComeBackAsTheyWereWhateverIsWrittenToThemMeanwhile) {
    const auto created = CreateInStep();
    ASSERT_TRUE(document->Undo());

    WriteAll(*created);
    created->RemoveAllValues(others);
    created->RemoveValue(others);

    ExpectAsCreated(*created);
    ASSERT_TRUE(document->Redo());
    EXPECT_TRUE(created->LiesInContainer());
    ExpectAsCreated(*created);
    EXPECT_EQ(KORUnicodeString("new"), created->GetAlias());
}

TEST_F(KORTakenAway, AreWrittenAgainOnceTheyAreBack) {
    const auto created = CreateInStep();
    document->Undo();
    document->Redo();

    created->SetDouble(length, 9.5, 0);

    EXPECT_EQ(9.5, created->GetDouble(length, 0));
}

TEST_F(KORTakenAway, AreNoChangeOfAStepInWhichTheyAreWritten) {
    const auto created = CreateInStep();
    document->Undo();
    {
        KORStep step(*document, "Write");
        WriteAll(*created);
        step.Commit();
    }

    EXPECT_TRUE(document->CanRedo()) << "a step without changes costs nothing that can be redone";
    ASSERT_TRUE(document->Redo());
    ExpectAsCreated(*created);
}

TEST_F(KORTakenAway, AreNotWrittenAfterARollbackEither) {
    const auto created = CreateInStep(false);

    WriteAll(*created);

    EXPECT_FALSE(created->LiesInContainer());
    EXPECT_EQ(1.5, created->GetDouble(length, 0));
}

TEST_F(KORTakenAway, AreThoseWhoseRemovalWasRedone) {
    const auto created = CreateInStep();
    {
        KORStep step(*document, "Remove");
        document->Remove(created.Get());
        step.Commit();
    }
    document->Undo();
    document->Redo();

    WriteAll(*created);

    document->Undo();
    ExpectAsCreated(*created);
}

TEST_F(KORTakenAway, AreNotThoseThatWereOnlyRemoved) {
    const auto created = CreateInStep();
    document->Remove(created.Get());

    created->SetDouble(length, 9.5, 0);

    EXPECT_EQ(9.5, created->GetDouble(length, 0));
}

TEST_F(KORTakenAway, CanBePutIntoAContainerByHand) {
    const auto created = CreateInStep(false);

    created->SetContainer(KORBaseUnknown_var::Adopt(document->GetFeatContainer()).Get());
    created->SetDouble(length, 9.5, 0);

    EXPECT_TRUE(created->LiesInContainer());
    EXPECT_EQ(9.5, created->GetDouble(length, 0));
}

}  // namespace
