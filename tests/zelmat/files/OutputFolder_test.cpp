#include "zelmat/files/OutputFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/inotify.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::UnorderedElementsAre;
using zelmat::Findings;
using zelmat::WriteOutputFolder;

class OutputFolder : public testing::Test {
protected:
    OutputFolder() { std::filesystem::create_directories(root_); }
    ~OutputFolder() override { std::filesystem::remove_all(root_); }

    static std::string Text(const std::string& path) {
        std::ostringstream text;
        text << std::ifstream(path).rdbuf();
        return text.str();
    }
    static std::vector<std::string> In(const std::string& folder) {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder))
            names.push_back(entry.path().filename().string());
        return names;
    }

    std::string root_ = testing::TempDir() + "zelmat-folder-" + std::to_string(getpid());
    Findings findings_;
};

TEST_F(OutputFolder, IsMadeWithTheFoldersAboveIt) {
    const auto written = WriteOutputFolder(root_ + "/a/b/", {{"x", "1"}, {"y", "2"}}, findings_);

    ASSERT_TRUE(written);
    EXPECT_EQ((*written)[1].path, root_ + "/a/b/y");
    EXPECT_EQ(Text(root_ + "/a/b/x"), "1");
    EXPECT_THAT(In(root_ + "/a/b"), UnorderedElementsAre("x", "y"));
}

TEST_F(OutputFolder, LeavesWhatElseLiesThere) {
    std::ofstream(root_ + "/mine") << "mine";
    std::ofstream(root_ + "/x") << "old";
    ::chmod((root_ + "/x").c_str(), 0640);

    ASSERT_TRUE(WriteOutputFolder(root_, {{"x", "new"}}, findings_));

    EXPECT_EQ(Text(root_ + "/mine"), "mine");
    EXPECT_EQ(Text(root_ + "/x"), "new");
    EXPECT_EQ(std::filesystem::status(root_ + "/x").permissions(), std::filesystem::perms(0640));
    EXPECT_THAT(In(root_), UnorderedElementsAre("mine", "x"));
}

TEST_F(OutputFolder, HasTheOldFileUntilTheNewOneIsThere) {
    std::ofstream(root_ + "/x") << "old";
    const int watch = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    ASSERT_GE(::inotify_add_watch(watch, root_.c_str(), IN_MOVED_FROM | IN_DELETE | IN_MOVED_TO), 0);

    ASSERT_TRUE(WriteOutputFolder(root_, {{"x", "new"}}, findings_));

    alignas(inotify_event) std::array<char, 4096> seen{};
    const ssize_t size = ::read(watch, seen.data(), seen.size());
    ::close(watch);
    std::vector<std::string> happened;
    for (ssize_t at = 0; at < size;) {
        const auto* event = reinterpret_cast<const inotify_event*>(seen.data() + at);
        if (event->len > 0 && std::string(event->name) == "x")
            happened.emplace_back((event->mask & IN_MOVED_TO) != 0 ? "comes" : "goes");
        at += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
    }
    EXPECT_THAT(happened, ElementsAre("comes"));
    EXPECT_EQ(Text(root_ + "/x"), "new");
}

TEST_F(OutputFolder, FollowsALink) {
    std::filesystem::create_directories(root_ + "/real");
    std::ofstream(root_ + "/real/x") << "old";
    std::filesystem::create_symlink("real/x", root_ + "/x");

    ASSERT_TRUE(WriteOutputFolder(root_, {{"x", "new"}}, findings_));

    EXPECT_TRUE(std::filesystem::is_symlink(root_ + "/x"));
    EXPECT_EQ(Text(root_ + "/real/x"), "new");
}

TEST_F(OutputFolder, IsAsItWasWhenAFileCannotBeReplaced) {
    std::ofstream(root_ + "/x") << "old";
    std::filesystem::create_directories(root_ + "/y/full");

    EXPECT_FALSE(WriteOutputFolder(root_, {{"x", "new"}, {"y", "new"}, {"z", "new"}}, findings_));

    EXPECT_EQ(Text(root_ + "/x"), "old");
    EXPECT_THAT(In(root_), UnorderedElementsAre("x", "y"));
    ASSERT_EQ(findings_.All().size(), 1U);
    EXPECT_EQ(FindingLine(findings_.All()[0]),
              root_ + "/y: error[not-written]: cannot be replaced (Is a directory)");
    EXPECT_EQ(findings_.Exit(), zelmat::EXIT_UNREADABLE);
}

/// The second file is longer than the process may write.
TEST_F(OutputFolder, IsNotThereWhenAFileDoesNotFit) {
    std::signal(SIGXFSZ, SIG_IGN);
    struct rlimit limit {};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    const struct rlimit little { 100'000, limit.rlim_max };
    ::setrlimit(RLIMIT_FSIZE, &little);

    const bool written =
        WriteOutputFolder(root_ + "/a/b", {{"x", "1"}, {"y", std::string(200'000, 'y')}}, findings_)
            .has_value();

    ::setrlimit(RLIMIT_FSIZE, &limit);
    EXPECT_FALSE(written);
    EXPECT_THAT(In(root_), IsEmpty());
    ASSERT_EQ(findings_.All().size(), 1U);
    EXPECT_THAT(FindingLine(findings_.All()[0]), HasSubstr("/a/b/y: error[not-written]: cannot be written"));
}

TEST_F(OutputFolder, DoesNotReplaceAFileThatNobodyMayWrite) {
    std::ofstream(root_ + "/x") << "mine";
    ::chmod((root_ + "/x").c_str(), 0444);

    EXPECT_FALSE(WriteOutputFolder(root_, {{"w", "1"}, {"x", "2"}}, findings_));

    EXPECT_EQ(Text(root_ + "/x"), "mine");
    EXPECT_THAT(In(root_), ElementsAre("x"));
    ASSERT_EQ(findings_.All().size(), 1U);
    EXPECT_EQ(FindingLine(findings_.All()[0]),
              root_ + "/x: error[not-written]: cannot be replaced (Permission denied)");
}

TEST_F(OutputFolder, TellsAFileInThePlaceOfTheFolder) {
    std::ofstream(root_ + "/file") << "old";
    EXPECT_FALSE(WriteOutputFolder(root_ + "/file", {{"x", "1"}}, findings_));
    EXPECT_EQ(Text(root_ + "/file"), "old");
    EXPECT_FALSE(WriteOutputFolder("/proc/none", {{"x", "1"}}, findings_));
}

}  // namespace
