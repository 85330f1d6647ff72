// What does it cost to start a command: `zelmat --version` from the start of its process to its end, all
// libraries loaded?

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include "bench/Ratios.h"

namespace {

using bench::Figure;
using bench::Target;

double Milliseconds(const timeval& time) {
    return 1e3 * static_cast<double>(time.tv_sec) + 1e-3 * static_cast<double>(time.tv_usec);
}

/// What a run of the program took of processor time, in user and system mode; negative when it failed.
double RunOnce() {
    char program[] = ZEL_PROGRAM;
    char option[] = "--version";
    char* const arguments[] = {program, option, nullptr};
    posix_spawn_file_actions_t silent;
    posix_spawn_file_actions_init(&silent);
    posix_spawn_file_actions_addopen(&silent, 1, "/dev/null", O_WRONLY, 0);
    pid_t child = 0;
    const int failed = posix_spawn(&child, program, &silent, nullptr, arguments, environ);
    posix_spawn_file_actions_destroy(&silent);
    int status = 0;
    rusage used{};
    if (failed != 0 || wait4(child, &status, 0, &used) != child || status != 0) return -1.0;
    return Milliseconds(used.ru_utime) + Milliseconds(used.ru_stime);
}

void StartOfACommand(benchmark::State& state) {
    double sum = 0.0;
    for (auto _ : state) {
        const double taken = RunOnce();
        if (taken < 0.0) state.SkipWithError("the program could not be run");
        sum += taken;
    }
    state.counters["ms"] = sum / static_cast<double>(state.iterations());
}
BENCHMARK(StartOfACommand)->Iterations(50);

const bench::Ratio kRatios[] = {
    {"a command's start", Figure::Counter("StartOfACommand/iterations:50", "ms", "ms"),
     Figure::Bound(10, "ms"), Target::AtMost(1)},
};

}  // namespace

int main(int argc, char** argv) {
    return bench::RunWithRatios(argc, argv, kRatios);
}
