#include "zelmat/exchange/calculix/SolverRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "zelmat/files/SignalHold.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using zelmat::Findings;
using zelmat::SolverProgram;

/// A folder for the temporary files of runs and for programs that stand in for the solver.
class SolverRun : public testing::Test {
protected:
    SolverRun() {
        std::filesystem::create_directories(runs_);
        ::setenv("TMPDIR", runs_.c_str(), 1);
    }
    ~SolverRun() override { std::filesystem::remove_all(folder_); }

    SolverProgram Script(const std::string& text, int timeout = 20) const {
        const std::string path = folder_ + "/solver";
        std::ofstream(path) << "#!/bin/sh\n" << text << "\n";
        ::chmod(path.c_str(), 0755);
        return {"solver", path, timeout};
    }

    std::string FindingOf(const SolverProgram& solver) const {
        Findings findings;
        EXPECT_FALSE(zelmat::RunSolver(solver, "deck\n", "card.json", findings));
        EXPECT_EQ(findings.All().size(), 1U);
        EXPECT_TRUE(std::filesystem::is_empty(runs_));
        return findings.All().empty() ? "" : FindingLine(findings.All().front());
    }

    std::string folder_ = testing::TempDir() + "zelmat-solver-" + std::to_string(getpid());
    std::string runs_ = folder_ + "/runs";
};

TEST_F(SolverRun, GivesTheDeckAndTakesTheResults) {
    Findings findings;
    const auto results =
        zelmat::RunSolver(Script("cat $1.inp > $1.dat; echo said; pwd"), "my deck\n", "card.json", findings);
    ASSERT_TRUE(results);
    EXPECT_EQ(results->printed, "my deck\n");
    EXPECT_THAT(results->log, HasSubstr("said\n"));
    EXPECT_THAT(results->log, HasSubstr(runs_));
    EXPECT_TRUE(std::filesystem::is_empty(runs_));
}

TEST_F(SolverRun, StopsASolverThatHangsWithAllItsChildren) {
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(
        FindingOf(Script("sleep 300 & sleep 300; wait", 1)),
        "card.json: error[solver-failed]: solver did not end within 1 s (it was stopped, --timeout gives it "
        "longer)");
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(60));
}

TEST_F(SolverRun, EndsWhatTheSolverLeavesBehind) {
    const std::string pid = folder_ + "/pid";
    Findings findings;
    EXPECT_TRUE(zelmat::RunSolver(Script("sleep 300 & echo $! > " + pid + "; cp $1.inp $1.dat"), "deck\n",
                                  "card.json", findings));
    pid_t left = 0;
    ASSERT_TRUE(std::ifstream(pid) >> left);
    // Gone, or dead until somebody asks for it.
    const auto lives = [&] {
        std::string number, name, state;
        std::ifstream("/proc/" + std::to_string(left) + "/stat") >> number >> name >> state;
        return !state.empty() && state != "Z" && state != "X";
    };
    for (int look = 0; look < 500 && lives(); ++look) ::usleep(10'000);
    EXPECT_FALSE(lives());
}

TEST_F(SolverRun, DoesNotWaitForAPipeInThePlaceOfResults) {
    EXPECT_EQ(FindingOf(Script("mkfifo $1.dat; rm log; mkfifo log")),
              "card.json: error[solver-failed]: solver failed with exit code 0 and printed no results");
}

TEST_F(SolverRun, LetsNoSolverFillTheDisk) {
    EXPECT_EQ(FindingOf(Script("truncate -s 600M $1.dat || exit 7")),
              "card.json: error[solver-failed]: solver failed with exit code 7 and printed no results");
    rlimit own{};
    ::getrlimit(RLIMIT_FSIZE, &own);
    EXPECT_EQ(own.rlim_cur, RLIM_INFINITY);
}

TEST_F(SolverRun, TellsACrash) {
    EXPECT_EQ(FindingOf(Script("echo x > $1.dat; kill -SEGV $$")),
              "card.json: error[solver-failed]: solver crashed: Segmentation fault");
}

TEST_F(SolverRun, TellsTheSolversOwnWordsAboutItsFailure) {
    EXPECT_EQ(
        FindingOf(Script("echo ' *ERROR reading *PLASTIC:'; printf '\\033[31m  bad card'; exit 201")),
        "card.json: error[solver-failed]: solver failed with exit code 201 and printed no results (it says: "
        "*ERROR reading *PLASTIC: \\x1b[31m bad card)");
}

TEST_F(SolverRun, TellsARunWithoutResults) {
    EXPECT_EQ(FindingOf(Script("exit 0")),
              "card.json: error[solver-failed]: solver failed with exit code 0 and printed no results");
}

TEST_F(SolverRun, TellsAFileThatIsNoProgram) {
    const std::string path = folder_ + "/text";
    std::ofstream(path) << "\x01\x02 no program\n";
    ::chmod(path.c_str(), 0755);
    EXPECT_THAT(FindingOf({"text", path, 5}), HasSubstr("cannot be run: Exec format error"));
}

TEST_F(SolverRun, TellsATemporaryFolderThatIsNotThere) {
    ::setenv("TMPDIR", (folder_ + "/missing").c_str(), 1);
    Findings findings;
    const auto results = zelmat::RunSolver(Script("cat $1.inp > $1.dat"), "deck\n", "card.json", findings);
    // The system's own folder stands in.
    EXPECT_TRUE(results);
}

TEST_F(SolverRun, TellsATemporaryFolderThatCannotBeWrittenTo) {
    ::setenv("TMPDIR", "/proc", 1);
    Findings findings;
    EXPECT_FALSE(zelmat::RunSolver(Script("cat $1.inp > $1.dat"), "deck\n", "card.json", findings));
    ASSERT_EQ(findings.All().size(), 1U);
    EXPECT_THAT(FindingLine(findings.All().front()),
                HasSubstr("a folder for intermediate files cannot be made"));
    EXPECT_EQ(findings.Exit(), zelmat::EXIT_UNREADABLE);
}

TEST_F(SolverRun, EndsTheSolverAndLeavesNothingWhenThisProgramIsToEnd) {
    Findings findings;
    const std::string pid = folder_ + "/pid";
    {
        const zelmat::SignalHold held;  // beyond the run's own
        ::kill(::getpid(), SIGINT);

        EXPECT_FALSE(
            zelmat::RunSolver(Script("echo $$ > " + pid + "; sleep 300"), "deck\n", "card.json", findings));
        ASSERT_EQ(findings.All().size(), 1U);
        EXPECT_THAT(FindingLine(findings.All().front()),
                    HasSubstr("solver was stopped: this program is to end"));

        // Taken here, or it would end the test with the hold.
        sigset_t waiting;
        sigemptyset(&waiting);
        sigaddset(&waiting, SIGINT);
        const struct timespec none {};
        EXPECT_EQ(::sigtimedwait(&waiting, nullptr, &none), SIGINT);
    }
    EXPECT_TRUE(std::filesystem::is_empty(runs_));
    pid_t solver = 0;
    if (std::ifstream(pid) >> solver) {
        EXPECT_NE(::kill(solver, 0), 0);
    }
}

TEST_F(SolverRun, GoesOnWithASignalThatIsIgnored) {
    const auto before = std::signal(SIGHUP, SIG_IGN);  // as nohup has it
    Findings findings;
    {
        const zelmat::SignalHold held;
        ::kill(::getpid(), SIGHUP);
        EXPECT_TRUE(
            zelmat::RunSolver(Script("sleep 0.1; cp $1.inp $1.dat"), "deck\n", "card.json", findings));
    }
    std::signal(SIGHUP, before);
}

TEST_F(SolverRun, SaysHowToInstallAMissingProgram) {
    Findings findings;
    EXPECT_FALSE(zelmat::FindSolver("no-such-ccx", 60, findings));
    ASSERT_EQ(findings.All().size(), 1U);
    EXPECT_EQ(FindingLine(findings.All().front()),
              "--solver: error[no-solver]: there is no program 'no-such-ccx' (on Debian: apt-get install "
              "calculix-ccx, --solver takes a path, too)");
    EXPECT_EQ(findings.Exit(), zelmat::EXIT_UNREADABLE);
}

TEST_F(SolverRun, TakesAPathThatIsExecutableAlone) {
    Findings findings;
    EXPECT_TRUE(zelmat::FindSolver(Script("true").path, 60, findings));
    EXPECT_FALSE(zelmat::FindSolver(folder_, 60, findings));
    EXPECT_FALSE(zelmat::FindSolver("/etc/passwd", 60, findings));
}

}  // namespace
