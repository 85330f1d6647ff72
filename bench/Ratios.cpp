#include "bench/Ratios.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <map>
#include <optional>
#include <string_view>
#include <vector>

namespace bench {

namespace {

struct Result {
    double time = 0.0;    ///< ns, median
    double spread = 0.0;  ///< standard deviation over mean
    std::map<std::string, double> counters;
};

std::string Format(const char* format, double value) {
    char text[64];
    std::snprintf(text, sizeof text, format, value);
    return text;
}

std::string Show(double value, const std::string& unit) {
    if (unit != "ns") return Format("%.4g ", value) + unit;
    if (value < 1e3) return Format("%.3g ns", value);
    if (value < 1e6) return Format("%.3g us", value / 1e3);
    return Format("%.3g ms", value / 1e6);
}

/// Keeps the medians; prints nothing while benchmarks run.
class Medians final : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }

    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            const std::string name = run.run_name.str();
            if (run.error_occurred) {
                std::fprintf(stderr, "%s: %s\n", name.c_str(), run.error_message.c_str());
            } else if (run.aggregate_name == "median" || run.repetitions == 1) {
                Keep(name, run);
            } else if (run.aggregate_name == "cv") {
                results_[name].spread = run.cpu_accumulated_time;
            }
        }
    }

    const Result* Find(const std::string& benchmark) const {
        const auto found = results_.find(benchmark);
        return found == results_.end() ? nullptr : &found->second;
    }

    void Print() const {
        std::printf("%-44s %12s  %s\n", "median", "CPU time", "spread");
        for (const auto& [name, result] : results_) {
            std::printf("%-44s %12s  %5.1f %%", name.c_str(), Show(result.time, "ns").c_str(),
                        100.0 * result.spread);
            for (const auto& [counter, value] : result.counters) {
                std::printf("  %s=%.5g", counter.c_str(), value);
            }
            std::printf("\n");
        }
    }

private:
    void Keep(const std::string& name, const Run& run) {
        const double perSecond = benchmark::GetTimeUnitMultiplier(run.time_unit);
        Result& result = results_[name];
        result.time = run.GetAdjustedCPUTime() / perSecond * 1e9;
        for (const auto& [counter, value] : run.counters) result.counters[counter] = value.value;
    }

    std::map<std::string, Result> results_;
};

/// Nothing when the benchmark did not run.
std::optional<double> ValueOf(const Figure& figure, const Medians& medians) {
    if (figure.benchmark.empty()) return figure.bound;
    const Result* result = medians.Find(figure.benchmark);
    if (!result) return std::nullopt;
    if (figure.counter.empty()) return result->time;
    const auto counter = result->counters.find(figure.counter);
    if (counter == result->counters.end()) return std::nullopt;
    return counter->second;
}

std::string Verdict(const Target& target, double ratio) {
    const bool faster = target.kind == Target::Kind::TimesFaster;
    if (target.bound == 0.0) return "";
    if (faster ? ratio >= target.bound : ratio <= target.bound) return "met";
    const double off = faster ? target.bound / ratio : ratio / target.bound;
    return "missed by " + Format("%.0f %%", 100.0 * (off - 1.0));
}

enum Column { kQuestion, kOurs, kBeside, kLabel, kRatio, kGoal, kVerdict, kColumns };
using Line = std::array<std::string, kColumns>;

/// Nothing when a side of the comparison was not measured.
std::optional<Line> LineOf(const Ratio& row, const Medians& medians) {
    const auto ours = ValueOf(row.ours, medians);
    const auto beside = ValueOf(row.beside, medians);
    if (!ours || !beside) return std::nullopt;
    const bool faster = row.target.kind == Target::Kind::TimesFaster;
    Line line;
    line[kQuestion] = row.question;
    line[kOurs] = Show(*ours, row.ours.unit);
    line[kBeside] = Show(*beside, row.beside.unit);
    line[kLabel] = row.beside.benchmark.empty() ? "our bound" : row.beside.benchmark;
    if (row.target.bound != 0.0)
        line[kGoal] = Format(faster ? ">= %g x faster" : "<= %g x", row.target.bound);
    const double ratio = faster ? *beside / *ours : *ours / *beside;
    const char* better = row.ours.unit == "ns" ? "%.3g x faster" : "%.3g x less";
    line[kRatio] = Format(faster ? better : "%.3g x", ratio);
    line[kVerdict] = Verdict(row.target, ratio);
    return line;
}

void Print(const Line& line) {
    std::printf("%-56s %12s  %12s  %-28s %14s  %-16s %s\n", line[kQuestion].c_str(), line[kOurs].c_str(),
                line[kBeside].c_str(), line[kLabel].c_str(), line[kRatio].c_str(), line[kGoal].c_str(),
                line[kVerdict].c_str());
}

/// Appends the lines as a Markdown table. False when the file cannot be written.
bool AppendMarkdown(const std::string& path, std::span<const Line> lines) {
    std::ofstream file(path, std::ios::app);
    file << "| Work | Ours | Beside it | | Ratio | Goal | |\n|---|--:|--:|---|--:|---|---|\n";
    for (const Line& line : lines) {
        for (const std::string& cell : line) file << "| " << cell << (cell.empty() ? "" : " ");
        file << "|\n";
    }
    file.flush();
    return file.good();
}

/// The file named by --markdown=FILE, which is taken out of the arguments; empty when there is none.
std::string TakeMarkdownOption(std::vector<char*>& arguments) {
    constexpr std::string_view kOption = "--markdown=";
    const auto found = std::ranges::find_if(
        arguments, [&](const char* argument) { return std::string_view(argument).starts_with(kOption); });
    if (found == arguments.end()) return "";
    std::string path(std::string_view(*found).substr(kOption.size()));
    arguments.erase(found);
    return path;
}

}  // namespace

int RunWithRatios(int argc, char** argv, std::span<const Ratio> ratios) {
    std::string repetitions = "--benchmark_repetitions=5";
    std::string minTime = "--benchmark_min_time=0.02";
    std::string mixed = "--benchmark_enable_random_interleaving=true";
    std::vector<char*> arguments = {argv[0], repetitions.data(), minTime.data(), mixed.data()};
    arguments.insert(arguments.end(), argv + 1, argv + argc);  // later: what the user says holds
    const std::string markdown = TakeMarkdownOption(arguments);
    arguments.push_back(nullptr);
    int count = static_cast<int>(arguments.size()) - 1;
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 1;

    Medians medians;
    benchmark::RunSpecifiedBenchmarks(&medians);
    benchmark::Shutdown();
    medians.Print();
    std::vector<Line> lines;
    for (const Ratio& row : ratios) {
        if (auto line = LineOf(row, medians)) lines.push_back(*line);
    }
    std::printf("\n");
    Print({"question", "ours", "beside it", "", "ratio", "goal", ""});
    for (const Line& line : lines) Print(line);
    if (!markdown.empty() && !AppendMarkdown(markdown, lines)) {
        std::fprintf(stderr, "%s: cannot be written\n", markdown.c_str());
        return 1;
    }
    return 0;
}

}  // namespace bench
