#include <gmock/gmock.h>

#include "tests/zelmat/support/DocumentFolder.h"
#include "zelmat/commands/CommandTable.h"
#include "zelmat/commands/frame/CommandLine.h"

namespace {

using testing::HasSubstr;
using CompletionCommand = DocumentFolder;

TEST_F(CompletionCommand, KnowsEveryCommandAndItsOptionsInEveryShell) {
    for (const char* shell : {"bash", "zsh", "fish"}) {
        const std::string script = Run({"completion", shell});
        for (const auto& kind : zelmat::Commands()) {
            EXPECT_THAT(script, HasSubstr(kind.name)) << shell;
            for (const std::string& option : zelmat::CommandOptions(kind)) {
                EXPECT_THAT(script, HasSubstr(option.substr(option.find_first_not_of('-')))) << shell;
            }
        }
    }
}

TEST_F(CompletionCommand, CompletesInBash) {
    const std::string script = File("zelmat.bash", Run({"completion", "bash"}));
    const std::string run = File(
        "run.sh", ". " + script +
                      "\nCOMP_WORDS=(zelmat und) COMP_CWORD=1; _zelmat; echo \"${COMPREPLY[@]}\"\n"
                      "COMP_WORDS=(zelmat add --keep) COMP_CWORD=2; _zelmat; echo \"${COMPREPLY[@]}\"\n");
    ASSERT_EQ(std::system(("bash " + run + " > " + Path("out")).c_str()), 0);

    EXPECT_EQ(Contents(Path("out")), "undo\n--keep-going\n");
}

TEST_F(CompletionCommand, WantsAShellThatItKnows) {
    EXPECT_THAT(Refusal(2, {"completion", "tcsh"}), HasSubstr("error[usage]"));
}

TEST(ManPage, ExplainsEveryCommandAsTheHelpDoes) {
    const ProgramRun run = RunZelmat({"help", "--man"});

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_THAT(run.out, testing::StartsWith(".TH ZELMAT 1\n"));
    for (const auto& kind : zelmat::Commands()) {
        EXPECT_THAT(run.out, HasSubstr(".SS zelmat " + kind.name + "\n"));
    }
    EXPECT_THAT(run.out, HasSubstr("\\-\\-keep\\-going"));
}

}  // namespace
