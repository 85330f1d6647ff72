#include "zelmat/settings/ConfigurationFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using zelmat::ConfigurationFile;
using zelmat::Findings;
using zelmat::Settings;

class ConfigurationFileTest : public testing::Test {
protected:
    ConfigurationFileTest() {
        fs::create_directories(folder_ + "/zelmat");
        ::setenv("XDG_CONFIG_HOME", folder_.c_str(), 1);
    }
    ~ConfigurationFileTest() override {
        fs::remove_all(folder_);
        ::unsetenv("XDG_CONFIG_HOME");
    }

    void Hold(const std::string& text) const { std::ofstream(path_, std::ios::binary) << text; }

    std::string Held() const {
        std::ifstream file(path_, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    /// What reading the file finds, one line each, "config.json" for its path.
    std::vector<std::string> Refusals() const {
        Findings findings;
        EXPECT_FALSE(ConfigurationFile().Read(findings));
        EXPECT_EQ(findings.Exit(), zelmat::EXIT_UNREADABLE);
        std::vector<std::string> lines;
        for (const auto& finding : findings.All()) {
            lines.push_back(zelmat::FindingLine(finding));
            if (lines.back().starts_with(path_)) lines.back().replace(0, path_.size(), "config.json");
        }
        return lines;
    }

    const std::string folder_ = testing::TempDir() + "zelmat-configuration-" + std::to_string(::getpid());
    const std::string path_ = folder_ + "/zelmat/config.json";
    Findings findings_;
};

TEST_F(ConfigurationFileTest, LiesInTheFolderOfConfigurations) {
    EXPECT_EQ(ConfigurationFile().Path(), path_);

    ::setenv("HOME", "/home/somebody", 1);
    ::setenv("XDG_CONFIG_HOME", "not/absolute", 1);
    EXPECT_EQ(ConfigurationFile().Path(), "/home/somebody/.config/zelmat/config.json");
    ::unsetenv("XDG_CONFIG_HOME");
    EXPECT_EQ(ConfigurationFile().Path(), "/home/somebody/.config/zelmat/config.json");
}

TEST_F(ConfigurationFileTest, SetsNothingWhereThereIsNone) {
    const auto settings = ConfigurationFile().Read(findings_);

    ASSERT_TRUE(settings);
    EXPECT_EQ(settings->units, "");
    EXPECT_THAT(findings_.All(), IsEmpty());
}

TEST_F(ConfigurationFileTest, IsReadAsItWasWritten) {
    fs::remove_all(folder_);

    ASSERT_TRUE(ConfigurationFile().Write({.units = "si,stress=ksi"}, findings_));

    EXPECT_EQ(Held(), "{\n  \"units\": \"si,stress=ksi\"\n}\n");
    EXPECT_EQ(ConfigurationFile().Read(findings_)->units, "si,stress=ksi");
    ASSERT_TRUE(ConfigurationFile().Write({}, findings_));
    EXPECT_EQ(Held(), "{}\n");
    EXPECT_THAT(findings_.All(), IsEmpty());
}

TEST_F(ConfigurationFileTest, NamesTheLineOfASettingThatThereIsNotOrThatIsWrong) {
    Hold("{\n\"unit\": \"us\",\n\"units\": \"stress=kg\"}");
    EXPECT_THAT(
        Refusals(),
        ElementsAre("config.json:2: error[bad-configuration]: there is no setting 'unit'; is 'units' meant?",
                    HasSubstr("config.json:3: error[bad-configuration]: units: ")));

    Hold("{\n\"units\":\n7}");
    EXPECT_THAT(Refusals(), ElementsAre("config.json:3: error[bad-configuration]: 'units' is no text"));
}

TEST_F(ConfigurationFileTest, IsRefusedWhenItIsNoConfiguration) {
    const std::string texts[] = {"",
                                 "[]",
                                 "\n\n{",
                                 "7",
                                 "null",
                                 "{\"units\": \"us\"} {}",
                                 "{\"units\": \"us\", \"units\": \"si\"}",
                                 std::string("{\"units\": \"us\"}\0", 16),
                                 "{\"units\": \"us\\u0000\"}",
                                 "{\"units\": \"\xff\"}",
                                 "{\"\x1b[31m\": \"us\"}",
                                 std::string(100'000, '['),
                                 "{\"units\": \"" + std::string(500'000, ',') + "\"}"};
    for (const std::string& text : texts) {
        Hold(text);
        for (const std::string& line : Refusals()) {
            EXPECT_THAT(line, HasSubstr("config.json:")) << text.substr(0, 40);
            EXPECT_LT(line.size(), 500u);
        }
    }
}

TEST_F(ConfigurationFileTest, IsNotWaitedForWhenItIsNoFileWithAnEnd) {
    ASSERT_EQ(::mkfifo(path_.c_str(), 0600), 0);
    EXPECT_THAT(Refusals(), ElementsAre("config.json: error[bad-configuration]: is no regular file"));

    fs::remove(path_);
    fs::create_directory(path_);
    EXPECT_THAT(Refusals(), ElementsAre("config.json: error[bad-configuration]: is no regular file"));

    fs::remove(path_);
    fs::create_symlink(path_, path_);
    EXPECT_THAT(Refusals(),
                ElementsAre(HasSubstr("config.json: error[bad-configuration]: cannot be read: ")));

    fs::remove(path_);
    Hold(std::string((1 << 20) + 1, ' '));
    EXPECT_THAT(Refusals(), ElementsAre("config.json: error[bad-configuration]: is larger than 1 MiB"));
}

TEST_F(ConfigurationFileTest, SaysWhyItCannotBeWritten) {
    fs::remove_all(folder_);
    std::ofstream file(folder_);

    EXPECT_FALSE(ConfigurationFile().Write({.units = "us"}, findings_));

    ASSERT_EQ(findings_.All().size(), 1u);
    EXPECT_EQ(findings_.All()[0].code, "not-written");
    EXPECT_EQ(findings_.All()[0].place.file, folder_ + "/zelmat");
}

TEST_F(ConfigurationFileTest, NeedsAHome) {
    ::unsetenv("XDG_CONFIG_HOME");
    ::setenv("HOME", "", 1);

    EXPECT_EQ(ConfigurationFile().Path(), "");
    EXPECT_TRUE(ConfigurationFile().Read(findings_));
    EXPECT_FALSE(ConfigurationFile().Write({.units = "us"}, findings_));
    EXPECT_EQ(findings_.All()[0].code, "not-written");
}

}  // namespace
