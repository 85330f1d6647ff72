#include "zelmat/commands/inputs/WrongForm.h"

#include <gmock/gmock.h>

#include "tests/zelmat/support/Program.h"

namespace {

using testing::EndsWith;
using testing::HasSubstr;

TEST(WrongForm, NamesTheCommandThatReadsALayupCard) {
    for (const char* command : {"show", "summary", "upgrade"}) {
        const ProgramRun run = RunZelmat({command, "layup_no_layers.json"});
        EXPECT_EQ(run.exitCode, 2) << command;
        EXPECT_EQ(
            run.err,
            "layup_no_layers.json: error[wrong-command]: this is a layup card (zelmat layup reads it)\n");
    }
}

TEST(WrongForm, NamesTheCommandThatReadsAMaterialCard) {
    for (const char* command : {"layup", "upgrade"}) {
        const ProgramRun run = RunZelmat({command, "two_tables.json"});
        EXPECT_EQ(run.exitCode, 2) << command;
        EXPECT_EQ(run.err,
                  "two_tables.json: error[wrong-command]: this is a material card (zelmat show reads it)\n");
    }
}

TEST(WrongForm, NamesTheCommandThatReadsADocument) {
    const std::string document = Sample("older/copper_and_rubber.json");
    const ProgramRun run = RunZelmat({"layup", document});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_THAT(run.err, EndsWith(": error[wrong-command]: this is a document (zelmat list reads it)\n"));
}

TEST(WrongForm, LeavesTheMistakesOfTheRightFormAsTheyAre) {
    EXPECT_THAT(RunZelmat({"show", "ragged.json"}).err, HasSubstr("error[ragged-row]"));
    EXPECT_THAT(RunZelmat({"layup", "layup_bad_angle.json"}).err, HasSubstr("error[not-a-number]"));
}

TEST(WrongForm, IsNoQuestionForAFileThatIsNotThere) {
    for (const char* command : {"layup", "show", "upgrade"}) {
        for (const char* path : {"missing.json", "missing", "missing.zeldoc"}) {
            const ProgramRun run = RunZelmat({command, path});
            EXPECT_EQ(run.exitCode, 3);
            EXPECT_EQ(run.err,
                      std::string(path) + ": error[unreadable]: cannot be read: No such file or directory\n");
        }
    }
}

}  // namespace
