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

TEST_F(ConfigCommand, PrintsOneJsonObject) {
    const json told = json::parse(Run({"config", "units=us", "--json"}).out);

    EXPECT_EQ(told["configuration"], file_);
    EXPECT_EQ(told["settings"], json::parse(R"({"units": "us"})"));
    EXPECT_EQ(told["text_units"]["stress"], "psi");
}

}  // namespace
