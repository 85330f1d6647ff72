#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "tests/zelmat/support/DocumentFolder.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// A document of three steps that add one material each.
class UndoCommand : public DocumentFolder {
protected:
    UndoCommand() {
        for (const char* name : {"A", "B", "C"}) {
            Run({"add", document_, File(name, R"({"name": ")" + std::string(name) + "\"}")});
        }
    }

    const std::string document_ = NewDocument();
};

TEST_F(UndoCommand, TakesBackTheLastStepAndRedoMakesItAgain) {
    EXPECT_EQ(Run({"undo", document_}), "undone: step 3: Add C\n");
    EXPECT_THAT(Names(document_), ElementsAre("A", "B"));
    EXPECT_EQ(Run({"redo", document_}), "redone: step 3: Add C\n");
    EXPECT_THAT(Names(document_), ElementsAre("A", "B", "C"));
}

TEST_F(UndoCommand, TakesBackSeveralStepsTheLastFirst) {
    EXPECT_EQ(Run({"undo", document_, "2"}), "undone: step 3: Add C\nundone: step 2: Add B\n");
    EXPECT_THAT(Names(document_), ElementsAre("A"));
    EXPECT_EQ(Run({"redo", document_, "2"}), "redone: step 2: Add B\nredone: step 3: Add C\n");
}

TEST_F(UndoCommand, GoesAsFarAsItCanAndSaysSo) {
    const ProgramRun run = RunZelmat({"undo", document_, "5"});

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_THAT(run.err,
                HasSubstr("note[fewer-steps]: there were no more steps to undo (5 asked for, 3 undone)"));
    EXPECT_THAT(Names(document_), IsEmpty());
}

TEST_F(UndoCommand, EndsWithOneWhenThereIsNothing) {
    EXPECT_EQ(Refusal(1, {"redo", document_}),
              "a.zeldoc: error[nothing-to-redo]: there is nothing to redo\n");
    Run({"undo", document_, "3"});
    const std::string before = Contents(document_);
    EXPECT_EQ(Refusal(1, {"undo", document_}),
              "a.zeldoc: error[nothing-to-undo]: there is nothing to undo\n");
    EXPECT_TRUE(Contents(document_) == before);
}

TEST_F(UndoCommand, WantsANumberFromOneOn) {
    EXPECT_THAT(Refusal(2, {"undo", document_, "0"}), HasSubstr("error[usage]"));
    EXPECT_THAT(Refusal(2, {"undo", document_, "x"}), HasSubstr("error[usage]"));
}

TEST_F(UndoCommand, IsForgottenForRedoByANewStep) {
    Run({"undo", document_});
    Run({"add", document_, File("D", R"({"name": "D"})")});

    EXPECT_THAT(Refusal(1, {"redo", document_}), HasSubstr("nothing-to-redo"));
    EXPECT_THAT(Names(document_), ElementsAre("A", "B", "D"));
}

TEST_F(UndoCommand, TellsItsStepsAsJson) {
    const auto json = nlohmann::json::parse(Run({"undo", document_, "--json"}));

    EXPECT_EQ(json.at("undone").at(0).at("number"), 3);
    EXPECT_EQ(json.at("undone").at(0).at("name"), "Add C");
}

TEST_F(UndoCommand, IsToldByTheLogWithTimeUserAndCommand) {
    Run({"undo", document_});
    const auto steps = nlohmann::json::parse(Run({"log", document_, "--json"})).at("steps");

    ASSERT_EQ(steps.size(), 3u);
    EXPECT_EQ(steps[1].at("name"), "Add B");
    EXPECT_EQ(steps[1].at("done"), true);
    EXPECT_EQ(steps[2].at("done"), false);
    EXPECT_THAT(
        steps[2].at("time").get<std::string>(),
        testing::MatchesRegex("20[0-9][0-9]-[0-9][0-9]-[0-9][0-9]T[0-9][0-9]:[0-9][0-9]:[0-9][0-9]Z"));
    EXPECT_EQ(steps[2].at("command"), "zelmat add a.zeldoc C");
    EXPECT_NE(steps[2].at("user"), "");
    EXPECT_THAT(Run({"log", document_}), HasSubstr("Add C  undone  zelmat add a.zeldoc C"));
}

TEST_F(UndoCommand, LeavesALookedAtDocumentAlone) {
    const std::string before = Contents(document_);
    Run({"log", document_});
    Run({"list", document_});
    Run({"show", document_, "A"});

    EXPECT_TRUE(Contents(document_) == before);
}

}  // namespace
