// The steps as whoever keeps them in a file sees them: their numbers, what changed since, and which are
// forgotten.

#include "KORUndoTest.h"

namespace {

using KORUndoHistory = KORUndoTest;

TEST_F(KORUndoHistory, NumbersItsStepsAndNeverGivesANumberAgain) {
    SetLength(2.0);
    SetLength(3.0);
    document->Undo();
    SetLength(4.0);

    ASSERT_EQ(2u, log.Steps().size());
    EXPECT_EQ(1u, log.Steps()[0].number);
    EXPECT_EQ(3u, log.Steps()[1].number);
    EXPECT_EQ(3u, log.LastNumber());
}

TEST_F(KORUndoHistory, TellsWhichStepsHaveChangedSinceTheyWereSaved) {
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

TEST_F(KORUndoHistory, ForgetsTheOldestStepsAndUndoesTheOthers) {
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

TEST_F(KORUndoHistory, GivesBackTheFeaturesOfStepsThatItForgets) {
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

TEST_F(KORUndoHistory, TakesOverTheStepsThatADocumentBringsAlong) {
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
