#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>

#include "tests/zelmat/support/Program.h"

namespace {

using nlohmann::json;
using testing::HasSubstr;
using testing::StartsWith;

class ConfigCommand : public testing::Test {
protected:
    ~ConfigCommand() override { std::filesystem::remove_all(folder_); }

    ProgramRun Run(const std::vector<std::string>& arguments) const {
        return RunZelmat(arguments, {"XDG_CONFIG_HOME=" + folder_});
    }

    const std::string folder_ = testing::TempDir() + "zelmat-config-" + std::to_string(::getpid());
    const std::string file_ = folder_ + "/zelmat/config.json";
};

TEST_F(ConfigCommand, ShowsWhatIsSet) {
    const ProgramRun before = Run({"config"});
    const ProgramRun set = Run({"config", "units=us"});
    const ProgramRun after = Run({"config"});

    EXPECT_THAT(before.out, StartsWith("configuration: " + file_ + " (not there)\nunits: not set\n"));
    EXPECT_THAT(before.out, HasSubstr("\n  stress                   MPa\n"));
    EXPECT_EQ(set.exitCode, 0);
    EXPECT_EQ(set.err, "");
    EXPECT_EQ(after.out, set.out);
    EXPECT_THAT(after.out, StartsWith("configuration: " + file_ + "\nunits: us\n"));
    EXPECT_THAT(after.out, HasSubstr("\n  stress                   psi\n"));
}

TEST_F(ConfigCommand, ChoosesTheUnitsOfTextAlone) {
    const ProgramRun usual = Run({"show", "two_tables.json"});
    const ProgramRun usualJson = Run({"show", "two_tables.json", "--json"});
    const ProgramRun usualCsv = Run({"show", "two_tables.json", "--csv"});
    Run({"config", "units=us"});

    EXPECT_THAT(usual.out, HasSubstr("Young's modulus [MPa]"));
    EXPECT_THAT(Run({"show", "two_tables.json"}).out, HasSubstr("Young's modulus [psi]"));
    EXPECT_THAT(Run({"show", "two_tables.json", "--units", "si"}).out, HasSubstr("Young's modulus [Pa]"));
    EXPECT_EQ(Run({"show", "two_tables.json", "--json"}).out, usualJson.out);
    EXPECT_EQ(Run({"show", "two_tables.json", "--csv"}).out, usualCsv.out);
    EXPECT_THAT(usualCsv.out, HasSubstr("youngs_modulus [Pa]"));
}

TEST_F(ConfigCommand, TakesASettingAway) {
    Run({"config", "units=us"});

    EXPECT_EQ(Run({"config", "units="}).exitCode, 0);
    EXPECT_THAT(Run({"config"}).out, HasSubstr("\nunits: not set\n"));
}

TEST_F(ConfigCommand, ChangesNothingWhenOneOfItsSettingsIsWrong) {
    const ProgramRun run = Run({"config", "units=us", "unit=si"});

    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.err,
              "zelmat config: error[wrong-setting]: there is no setting 'unit'; is 'units' meant?\n");
    EXPECT_FALSE(std::filesystem::exists(folder_));
    EXPECT_EQ(Run({"config", "units"}).exitCode, 2);
    EXPECT_EQ(Run({"config", "units=stress=kg"}).exitCode, 2);
    EXPECT_EQ(Run({"config", "=us"}).exitCode, 2);
    EXPECT_FALSE(std::filesystem::exists(folder_));
}

TEST_F(ConfigCommand, StopsWhatWouldShowNumbersWhenItCannotBeRead) {
    std::filesystem::create_directories(folder_ + "/zelmat");
    std::ofstream(file_) << "{\n\"units\": \"furlongs\"}";

    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"show", "two_tables.json"}, {"config"}, {"config", "units=us"}}) {
        const ProgramRun run = Run(arguments);
        EXPECT_EQ(run.exitCode, 3);
        EXPECT_EQ(run.out, "");
        EXPECT_THAT(run.err,
                    StartsWith(file_ + ":2: error[bad-configuration]: units: 'furlongs' is no system"));
    }
    EXPECT_EQ(Run({"show", "two_tables.json", "--json"}).exitCode, 0);
    EXPECT_EQ(Run({"unit", "5 mil", "mm"}).exitCode, 0);
}

TEST_F(ConfigCommand, BoundsTheHistoryOfTheDocumentsThatAreChanged) {
    const std::string document = folder_ + "/a.zeldoc";
    EXPECT_THAT(Run({"config"}).out, HasSubstr("\nhistory-steps: not set\nhistory-bytes: not set\n"));
    EXPECT_THAT(Run({"config", "history-steps=2", "history-bytes=1 MB"}).out,
                HasSubstr("\nhistory-steps: 2\nhistory-bytes: 1 MB\n"));
    Run({"new", document});
    Run({"add", document, "two_tables.json"});
    for (const char* change : {"description=a", "description=b"}) Run({"set", document, "Two", change});
    const auto numbers = [&] {
        std::vector<int> all;
        const json log = json::parse(Run({"log", document, "--json"}).out);
        for (const json& step : log["steps"]) all.push_back(step["number"]);
        return all;
    };
    EXPECT_THAT(numbers(), testing::ElementsAre(2, 3));

    // A document keeps what it was told, where a user says nothing.
    Run({"config", "history-steps=", "history-bytes="});
    Run({"set", document, "Two", "description=c"});
    EXPECT_THAT(numbers(), testing::ElementsAre(3, 4));

    Run({"config", "history-steps=1000", "history-bytes=0"});
    Run({"set", document, "Two", "description=d"});
    EXPECT_THAT(numbers(), testing::ElementsAre(5));
}

TEST_F(ConfigCommand, LetsChangesSayThatTheyCannotBeTakenBackWhereNoHistoryIsKept) {
    const std::string document = folder_ + "/a.zeldoc";
    Run({"config", "history-steps=0"});
    Run({"new", document});
    EXPECT_THAT(Run({"add", document, "two_tables.json"}).out,
                testing::EndsWith("\nchanged for good: the document keeps no history\n"));

    const json told = json::parse(Run({"set", document, "Two", "description=a", "--json"}).out);
    EXPECT_EQ(told["changed"], true);
    EXPECT_EQ(told["step"], nullptr);
    EXPECT_EQ(Run({"set", document, "Two", "description=a"}).out, "nothing has changed\n");
}

TEST_F(ConfigCommand, RefusesASettingThatIsGivenTwice) {
    const ProgramRun run = Run({"config", "units=us", "units=si"});

    EXPECT_EQ(run.exitCode, 2);
    EXPECT_THAT(run.err, HasSubstr("error[given-twice]: 'units' is given twice"));
    EXPECT_FALSE(std::filesystem::exists(file_));
}

TEST_F(ConfigCommand, RefusesAWrongAmountOfHistoryByItsName) {
    const ProgramRun run = Run({"config", "history-steps=many", "history-bytes=big"});

    EXPECT_EQ(run.exitCode, 2);
    EXPECT_THAT(run.err,
                HasSubstr("error[wrong-setting]: history-steps: expected a whole number from 0 to "));
    EXPECT_THAT(run.err, HasSubstr("error[wrong-setting]: history-bytes: expected a number of bytes"));
    EXPECT_FALSE(std::filesystem::exists(folder_));
}

TEST_F(ConfigCommand, KeepsDocumentsFromBeingChangedWhenItCannotBeRead) {
    const std::string document = folder_ + "/a.zeldoc";
    std::filesystem::create_directories(folder_ + "/zelmat");
    Run({"new", document});
    Run({"add", document, "two_tables.json"});
    std::ofstream(file_) << R"({"history-steps": "few"})";

    const ProgramRun run = Run({"set", document, "Two", "description=a"});
    EXPECT_EQ(run.exitCode, 3);
    EXPECT_THAT(run.err, StartsWith(file_ + ":1: error[bad-configuration]: history-steps: expected"));
    EXPECT_EQ(Run({"undo", document}).exitCode, 3);
    EXPECT_EQ(Run({"new", folder_ + "/b.zeldoc"}).exitCode, 3);
    EXPECT_FALSE(std::filesystem::exists(folder_ + "/b.zeldoc"));
    EXPECT_EQ(Run({"list", document}).exitCode, 0);
}

TEST_F(ConfigCommand, SaysThatAFullDiskTookNothing) {
    for (const auto& arguments : {std::vector<std::string>{"config"}, {"config", "units=us"}}) {
        const ProgramRun run = RunZelmatWith(arguments, ">/dev/full", {"XDG_CONFIG_HOME=" + folder_});
        EXPECT_EQ(run.exitCode, 3);
        EXPECT_THAT(run.err, HasSubstr("standard output: error[not-written]"));
    }
}

TEST_F(ConfigCommand, PrintsOneJsonObject) {
    const json told = json::parse(Run({"config", "units=us", "history-bytes=1MB", "--json"}).out);

    EXPECT_EQ(told["configuration"], file_);
    EXPECT_EQ(told["settings"], json::parse(R"({"units": "us", "history-bytes": "1MB"})"));
    EXPECT_EQ(told["text_units"]["stress"], "psi");
}

}  // namespace
