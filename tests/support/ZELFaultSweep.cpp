#include "tests/support/ZELFaultSweep.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <iostream>

#include "tests/support/ZELCatalogText.h"

namespace {

constexpr int kSane = 1000;  ///< more calls than any operation makes: the run does not get anywhere
enum ExitCode { kFaultHit = 40, kNoFaultLeft = 41 };

/// What the parent is told: text up to the end of the pipe. A line that begins with '!' opens a failure.
std::string RunChild(ZELFault fault, int n, const std::function<void(ZELFaultRun&)>& run, int& exitCode) {
    testing::TestPartResultArray results;
    std::string report;
    bool hit = false;
    {
        const testing::ScopedFakeTestPartResultReporter collect(
            testing::ScopedFakeTestPartResultReporter::INTERCEPT_ONLY_CURRENT_THREAD, &results);
        ZELFaultRun current(fault, n);
        run(current);
        hit = current.FaultHit();
        if (hit) report = "failing call: " + current.FailedCall() + "\n";
    }
    for (int i = 0; i < results.size(); ++i) {
        const testing::TestPartResult& result = results.GetTestPartResult(i);
        if (result.failed()) {
            report += std::string("!") + (result.file_name() ? result.file_name() : "") + ":" +
                      std::to_string(result.line_number()) + ": " + result.message() + "\n";
        }
    }
    exitCode = hit ? kFaultHit : kNoFaultLeft;
    return report;
}

[[noreturn]] void Child(ZELFault fault, int n, const std::function<void(ZELFaultRun&)>& run, int pipe) {
    int exitCode = EXIT_FAILURE;
    {
        const std::string report = RunChild(fault, n, run, exitCode);
        for (std::size_t sent = 0; sent < report.size();) {
            const ssize_t step = write(pipe, report.data() + sent, report.size() - sent);
            if (step <= 0) break;
            sent += static_cast<std::size_t>(step);
        }
        close(pipe);
    }
    std::exit(exitCode);  // not _exit: what is done at the end of a process (leak check, coverage) matters
}

std::string ReadAll(int pipe) {
    std::string text;
    char buffer[4096];
    for (ssize_t got; (got = read(pipe, buffer, sizeof buffer)) > 0;) {
        text.append(buffer, static_cast<std::size_t>(got));
    }
    close(pipe);
    return text;
}

}  // namespace

void ZELFaultRun::Act(const std::function<void()>& act) {
    store_.Inject(fault_, n_);
    try {
        act();
    } catch (const ZELInjectedFault&) {
        threw_ = true;
    }
    store_.ClearFault();
}

int ZELFaultSweep(ZELFault fault, const std::function<void(ZELFaultRun&)>& run) {
    ZELModuleTypes();  // read once here, instead of once in each process
    for (int n = 1; n <= kSane; ++n) {
        int ends[2];
        if (pipe(ends) != 0) break;
        std::cout.flush();
        std::fflush(nullptr);
        const pid_t child = fork();
        if (child == 0) {
            close(ends[0]);
            Child(fault, n, run, ends[1]);
        }
        close(ends[1]);
        const std::string report = ReadAll(ends[0]);
        int status = 0;
        if (child < 0 || waitpid(child, &status, 0) != child) break;

        const int code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        if (code != kFaultHit && code != kNoFaultLeft) {
            ADD_FAILURE() << "fault " << n << ": the process ended with status " << status
                          << " (signal, sanitizer or leak). " << report;
            if (report.empty()) return n - 1;
        } else if (report.find("\n!") != std::string::npos || report.starts_with('!')) {
            ADD_FAILURE() << "fault " << n << ": " << report;
        }
        if (code == kNoFaultLeft) return n - 1;
    }
    ADD_FAILURE() << "the sweep did not come to an end";
    return 0;
}
