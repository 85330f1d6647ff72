#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>

#include "tests/zelmat/support/CardFile.h"
#include "tests/zelmat/support/Program.h"

namespace {

using testing::HasSubstr;

TEST(ProveCommand, PrintsWhatBothCompute) {
    const ProgramRun run = RunZelmat({"prove", Sample("foam_rohacell71.json"), "--solver", "ccx"});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_THAT(
        run.out,
        HasSubstr(
            "\n  elastic   tension, strain 0.001, 293.15 K  stress          Pa     105000  105000           "
            "0  1e-06\n"));
    EXPECT_THAT(run.out, HasSubstr("\n4 numbers compared in 2 runs, 0 beyond the bound\n"));
}

TEST(ProveCommand, PrintsOneJsonObject) {
    const ProgramRun run = RunZelmat({"prove", Sample("foam_rohacell71.json"), "--solver", "ccx", "--json"});
    const auto json = nlohmann::json::parse(run.out);
    EXPECT_EQ(json["lines"].size(), 4U);
    EXPECT_EQ(json["lines"][0]["ours"], 105000.0);
    EXPECT_EQ(json["lines"][0]["unit"], "Pa");
    EXPECT_EQ(json["lines"][0]["passes"], true);
}

TEST(ProveCommand, SaysOnceThatTheSolverPrintsSomethingElse) {
    const std::string solver = testing::TempDir() + "zelmat-rubbish-" + std::to_string(getpid());
    std::ofstream(solver) << "#!/bin/sh\nhead -c 5000 /dev/urandom > $1.dat\n";
    std::filesystem::permissions(solver, std::filesystem::perms::owner_all);

    const ProgramRun run = RunZelmat({"prove", Sample("foam_rohacell71.json"), "--solver", solver});

    EXPECT_EQ(run.exitCode, 3);
    EXPECT_THAT(run.err, HasSubstr("printed none of the numbers that its deck asks for"));
    EXPECT_THAT(run.err, testing::Not(HasSubstr("nan")));
    std::filesystem::remove(solver);
}

TEST(ProveCommand, KeepsTheModelsThatItRuns) {
    const std::string folder = testing::TempDir() + "zelmat-kept-" + std::to_string(getpid());
    const ProgramRun run =
        RunZelmat({"prove", Sample("foam_rohacell71.json"), "--solver", "ccx", "--keep-deck", folder});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_THAT(run.out, HasSubstr("\nkept: " + folder + "/1_elastic.inp\n"));
    std::ostringstream text;
    text << std::ifstream(folder + "/1_elastic.inp").rdbuf();
    EXPECT_THAT(text.str(), HasSubstr("*MATERIAL, NAME=PMI_foam_Rohacell_71\n*ELASTIC\n1.05e+08, 0.4\n"));
    EXPECT_TRUE(std::filesystem::exists(folder + "/2_density.inp"));
    std::filesystem::remove_all(folder);
}

TEST(ProveCommand, KeepsTheModelsOfASolverThatFails) {
    const std::string folder = testing::TempDir() + "zelmat-failing-" + std::to_string(getpid());
    const ProgramRun run =
        RunZelmat({"prove", Sample("foam_rohacell71.json"), "--solver", "/bin/false", "--keep-deck", folder});
    EXPECT_EQ(run.exitCode, 3);
    EXPECT_TRUE(std::filesystem::exists(folder + "/1_elastic.inp"));
    std::filesystem::remove_all(folder);
}

TEST(ProveCommand, HoldsADeckOfOtherHandsAgainstTheCard) {
    const auto prove = [](const std::string& text) {
        const CardFile deck(text);
        return RunZelmat({"prove", Sample("foam_rohacell71.json"), "--solver", "ccx", "--units", "mm-t-s",
                          "--deck", deck.Path()});
    };
    const ProgramRun right = prove(
        "*HEADING\nfoam\n*Material, name = Schaum\n*elastic\n105., .4\n*density\n75.e-12\n*NODE\n1,0,0,0\n");
    EXPECT_EQ(right.exitCode, 0) << right.err;
    EXPECT_THAT(right.out, HasSubstr("\n4 numbers compared in 2 runs, 0 beyond the bound\n"));
    const ProgramRun wrong = prove("*MATERIAL, NAME=S\n*ELASTIC\n105., .3\n*DENSITY\n75e-12\n");
    EXPECT_EQ(wrong.exitCode, 1);
    EXPECT_THAT(wrong.err, HasSubstr("error[not-as-computed]: elastic, shear, strain 0.001, 20 degC"));
    EXPECT_THAT(prove("*MATERIAL, NAME=S\n*DENSITY\n75\n*MATERIAL, NAME=T\n").err,
                HasSubstr(":4: error[several-materials]: a second *MATERIAL"));
    EXPECT_THAT(prove("*NODE\n1,0,0,0\n").err,
                HasSubstr("error[no-materials]: there is no *MATERIAL card in it"));
}

TEST(ProveCommand, SaysHowToInstallAMissingSolver) {
    const ProgramRun run = RunZelmat({"prove", Sample("foam_rohacell71.json"), "--solver", "ccx-missing"});
    EXPECT_EQ(run.exitCode, 3);
    EXPECT_THAT(run.err, HasSubstr("apt-get install calculix-ccx"));
}

TEST(ProveCommand, EndsWithOneWhereThereIsNothingToProve) {
    const ProgramRun run =
        RunZelmat({"prove", Sample("silicone_rtv141.json"), "--solver", "ccx", "--model", "OGDEN"});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_THAT(run.err, HasSubstr("error[no-such-model]"));
}

}  // namespace
