#pragma once

#include <span>
#include <string>

namespace bench {

/// One side of a comparison: what a benchmark of this run measured, or a figure measured elsewhere. Times are
/// nanoseconds of CPU time; the medians of the repetitions.
struct Figure {
    std::string benchmark;  ///< empty: a fixed figure
    std::string counter;    ///< of that benchmark, in `unit`; empty: its time per iteration
    std::string unit;       ///< "ns" is printed with a fitting prefix, everything else as it is
    double low = 0.0;       ///< of a fixed figure; it may be a span
    double high = 0.0;
    std::string label;  ///< what the table calls it beside its value

    static Figure Time(std::string benchmark, std::string label = "") {
        return {std::move(benchmark), "", "ns", 0.0, 0.0, std::move(label)};
    }
    static Figure Counter(std::string benchmark, std::string counter, std::string unit,
                          std::string label = "") {
        return {std::move(benchmark), std::move(counter), std::move(unit), 0.0, 0.0, std::move(label)};
    }
    /// What a well-known document store of the same kind took for the same work, on this kind of machine.
    static Figure Peer(double low, double high, std::string unit = "ns") {
        return {"", "", std::move(unit), low, high, "peer, measured once"};
    }
    static Figure PeerRate(double low, double high) { return Peer(1e9 / high, 1e9 / low); }  ///< per second
};

/// What a ratio is to be. A bound of 0 asks for nothing: the ratio is only shown.
struct Target {
    enum class Kind { TimesFaster, TimesTheCost };

    Kind kind = Kind::TimesTheCost;
    double bound = 0.0;

    static Target AtLeast(double timesFaster) { return {Kind::TimesFaster, timesFaster}; }
    static Target AtMost(double timesTheCost) { return {Kind::TimesTheCost, timesTheCost}; }
    static Target None() { return {}; }
};

/// One line of the closing table.
struct Ratio {
    std::string question;
    Figure ours;
    Figure beside;
    Target target;
};

/// Runs the program's benchmarks and prints their medians, then the table of ratios: question, ours, what
/// stands beside it, ratio, target, and whether it is met. Machines are shared and noisy: repetitions of all
/// benchmarks of a program are mixed, so that what is compared ran side by side. The usual --benchmark_...
/// options hold. Returns the program's exit code: 0 also when a target is missed; 1 for bad options.
int RunWithRatios(int argc, char** argv, std::span<const Ratio> ratios);

}  // namespace bench
