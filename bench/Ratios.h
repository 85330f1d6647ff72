#pragma once

#include <span>
#include <string>

namespace bench {

/// One side of a comparison: what a benchmark of this run measured, or a bound of our own. Never what another
/// machine measured. Times are nanoseconds of CPU time; the medians of the repetitions.
struct Figure {
    std::string benchmark;  ///< empty: no benchmark
    std::string counter;    ///< of that benchmark, in `unit`; empty: its time per iteration
    std::string unit;       ///< "ns" is printed with a fitting prefix, everything else as it is
    double bound = 0.0;     ///< without a benchmark

    static Figure Time(std::string benchmark) { return {std::move(benchmark), "", "ns"}; }
    static Figure Counter(std::string benchmark, std::string counter, std::string unit) {
        return {std::move(benchmark), std::move(counter), std::move(unit)};
    }
    static Figure Bound(double value, std::string unit) { return {"", "", std::move(unit), value}; }
};

/// What a ratio is to be. A bound of 0 asks for nothing: the ratio is only shown.
struct Target {
    enum class Kind { TimesFaster, TimesTheCost };

    Kind kind = Kind::TimesTheCost;
    double bound = 0.0;

    static Target AtLeast(double timesFaster) { return {Kind::TimesFaster, timesFaster}; }
    static Target AtMost(double timesTheCost) { return {Kind::TimesTheCost, timesTheCost}; }
    static Target Faster() { return AtLeast(0.0); }  ///< shown as so many times faster
    static Target None() { return {}; }              ///< shown as so many times the cost
};

/// One line of the closing table.
struct Ratio {
    std::string question;
    Figure ours;
    Figure beside;
    Target target;
};

/// Runs the program's benchmarks and prints their medians, then the table of ratios: question, ours, what
/// stands beside it, ratio, target, and whether it is met. A row whose benchmark did not run (filtered out,
/// or the peer is not installed) is left out. Machines are shared and noisy: repetitions of all benchmarks of
/// a program are mixed, so that what is compared ran side by side. The usual --benchmark_... options hold;
/// --markdown=FILE appends the table to a file as well. Returns the program's exit code: 0 also when a target
/// is missed; 1 for bad options and when that file cannot be written.
int RunWithRatios(int argc, char** argv, std::span<const Ratio> ratios);

}  // namespace bench
