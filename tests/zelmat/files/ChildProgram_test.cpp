#include "zelmat/files/ChildProgram.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <vector>

namespace {

using zelmat::ChildProgram;
using zelmat::Findings;
using zelmat::RunChild;
using zelmat::ScratchFolder;

ChildProgram Shell(const std::string& script) {
    return {.name = "sh", .arguments = {"-c", script}, .needed = "a test", .package = "dash"};
}

TEST(ChildProgram, RunsInTheFolderWithItsArgumentsAsTheyAre) {
    Findings findings;
    const ScratchFolder folder(findings);
    const ChildProgram program{
        .name = "sh",
        .arguments = {"-c", "printf '%s' \"$1\" > got", "sh", "`id` $(id) 'a' \"b\" *"},
        .needed = "a test",
        .package = "dash"};

    EXPECT_TRUE(RunChild(program, folder, findings));

    EXPECT_EQ(folder.Read("got", 100), "`id` $(id) 'a' \"b\" *");
    EXPECT_TRUE(findings.All().empty());
}

TEST(ChildProgram, SaysHowItEndedAndWhatItSaid) {
    Findings findings;
    const ScratchFolder folder(findings);

    EXPECT_FALSE(RunChild(Shell("echo broken >&2; exit 4"), folder, findings));

    ASSERT_EQ(findings.All().size(), 1u);
    EXPECT_EQ(FindingLine(findings.All()[0]), "sh: error[program-failed]: the program ended with 4 (broken)");
}

TEST(ChildProgram, GetsTheEnvironmentButForWhatWouldChangeItsWork) {
    Findings findings;
    const ScratchFolder folder(findings);
    ::setenv("GNUTERM", "x11", 1);
    ::setenv("TZ", "Asia/Tokyo", 1);
    ::setenv("KEPT", "a=b", 1);
    ChildProgram program = Shell("printf '%s,%s,%s' \"$GNUTERM\" \"$TZ\" \"$KEPT\" > got");
    program.without = {"GNU"};
    program.with = {"TZ=UTC0"};

    EXPECT_TRUE(RunChild(program, folder, findings));

    EXPECT_EQ(folder.Read("got", 100), ",UTC0,a=b");
}

TEST(ChildProgram, IsKilledWhenItTakesTooLong) {
    Findings findings;
    const ScratchFolder folder(findings);
    ChildProgram program = Shell("sleep 100");
    program.minutes = 0;

    EXPECT_FALSE(RunChild(program, folder, findings));

    ASSERT_EQ(findings.All().size(), 1u);
    EXPECT_EQ(findings.All()[0].text, "the program was ended by signal 9 (Killed)");
}

TEST(ChildProgram, TellsEverySecondThatItIsStillWaitedFor) {
    Findings findings;
    const ScratchFolder folder(findings);
    std::vector<std::size_t> seconds;
    ChildProgram program = Shell("sleep 1.2");
    program.waited = [&](std::size_t waited) { seconds.push_back(waited); };

    ASSERT_TRUE(RunChild(program, folder, findings));

    ASSERT_FALSE(seconds.empty());
    EXPECT_EQ(seconds.front(), 1u);
    EXPECT_TRUE(std::is_sorted(seconds.begin(), seconds.end()));
}

TEST(ChildProgram, IsNotReadFromTheTerminal) {
    Findings findings;
    const ScratchFolder folder(findings);

    EXPECT_TRUE(RunChild(Shell("! read line"), folder, findings)) << "nothing is on its standard input";
}

TEST(ChildProgram, IsKilledWhenThisProgramIsToEnd) {
    Findings findings;
    {
        const ScratchFolder folder(findings);
        ::kill(::getpid(), SIGTERM);  // waits: the folder holds it back

        EXPECT_FALSE(RunChild(Shell("sleep 100"), folder, findings));

        // Taken here, or it would end the test with the folder.
        sigset_t taken;
        sigemptyset(&taken);
        sigaddset(&taken, SIGTERM);
        int signal = 0;
        sigwait(&taken, &signal);
        EXPECT_EQ(signal, SIGTERM);
    }
    ASSERT_EQ(findings.All().size(), 1u);
    EXPECT_EQ(FindingLine(findings.All()[0]),
              "sh: error[program-failed]: the program was ended by signal 9 (Killed)");
}

TEST(ScratchFolder, GoesWithAllThatIsInIt) {
    Findings findings;
    std::string path;
    {
        const ScratchFolder folder(findings);
        path = folder.Path();
        ASSERT_TRUE(folder.Write("a", "text", findings));
        EXPECT_EQ(folder.Read("a", 2), "te");
        EXPECT_EQ(folder.Read("none", 2), "");
        std::filesystem::create_directory(path + "/b");
    }
    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST(ScratchFolder, GoesWithTheNextOneWhenTheProgramWasKilled) {
    namespace fs = std::filesystem;
    const std::string place = testing::TempDir() + "zelmat-killed-" + std::to_string(getpid());
    const std::string own = place + "/zelmat-scratch-folder";
    fs::create_directories(own);
    ::setenv("TMPDIR", place.c_str(), 1);
    const pid_t child = ::fork();
    if (child == 0) {
        Findings findings;
        const ScratchFolder folder(findings);
        static_cast<void>(folder.Write("a", "text", findings));
        ::kill(::getpid(), SIGKILL);
    }
    ::waitpid(child, nullptr, 0);
    const auto count = [&] { return std::distance(fs::directory_iterator(place), fs::directory_iterator()); };
    ASSERT_EQ(count(), 2);

    {
        Findings findings;
        const ScratchFolder one(findings), other(findings);
        EXPECT_EQ(count(), 3);
        EXPECT_TRUE(one.Exists() && fs::exists(one.Path()));
        EXPECT_TRUE(other.Exists() && fs::exists(other.Path()));
    }
    EXPECT_EQ(count(), 1);
    EXPECT_TRUE(fs::exists(own)) << "a folder of the user's own";
    ::unsetenv("TMPDIR");
    fs::remove_all(place);
}

TEST(ScratchFolder, SaysThatAFileCannotBeWritten) {
    Findings findings;
    const ScratchFolder folder(findings);

    EXPECT_FALSE(folder.Write("no/such/folder", "text", findings));

    ASSERT_EQ(findings.All().size(), 1u);
    EXPECT_EQ(findings.All()[0].code, "not-written");
}

}  // namespace
