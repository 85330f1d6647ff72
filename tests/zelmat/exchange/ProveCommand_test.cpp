#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

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
