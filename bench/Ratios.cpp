#include "bench/Ratios.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <optional>
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

std::string ShowSpan(double low, double high, const std::string& unit) {
    const std::string upper = Show(high, unit);
    return low == high ? upper : Show(low, unit) + " - " + upper;
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

struct Span {
    double low;
    double high;
};

/// Nothing when the benchmark was filtered out.
std::optional<Span> ValueOf(const Figure& figure, const Medians& medians) {
    if (figure.benchmark.empty()) return Span{figure.low, figure.high};
    const Result* result = medians.Find(figure.benchmark);
    if (!result) return std::nullopt;
    if (figure.counter.empty()) return Span{result->time, result->time};
    const auto counter = result->counters.find(figure.counter);
    if (counter == result->counters.end()) return std::nullopt;
    return Span{counter->second, counter->second};
}

std::string Verdict(const Target& target, const Span& ratio) {
    if (target.bound == 0.0) return "";
    const bool faster = target.kind == Target::Kind::TimesFaster;
    const double strict = faster ? ratio.low : ratio.high;
    const double lenient = faster ? ratio.high : ratio.low;
    const auto meets = [&](double value) { return faster ? value >= target.bound : value <= target.bound; };
    if (meets(strict)) return "met";
    const double off = faster ? target.bound / strict : strict / target.bound;
    const std::string missed = "missed by " + Format("%.0f %%", 100.0 * (off - 1.0));
    return meets(lenient) ? missed + " (met against the peer's slower run)" : missed;
}

void PrintRow(const Ratio& row, const Medians& medians) {
    const auto ours = ValueOf(row.ours, medians);
    const auto beside = ValueOf(row.beside, medians);
    if (!ours || !beside) return;
    const bool faster = row.target.kind == Target::Kind::TimesFaster;
    const Span ratio = faster ? Span{beside->low / ours->high, beside->high / ours->low}
                              : Span{ours->low / beside->high, ours->high / beside->low};
    std::string ratioText = Format("%.2f", ratio.low);
    if (ratio.low != ratio.high) ratioText += Format(" - %.2f", ratio.high);
    std::string target;
    if (row.target.bound != 0.0) target = Format(faster ? ">= %g x faster" : "<= %g x", row.target.bound);
    const std::string label = row.beside.label.empty() ? row.beside.benchmark : row.beside.label;
    std::printf("%-52s %12s  %-20s %-30s %15s  %-16s %s\n", row.question.c_str(),
                ShowSpan(ours->low, ours->high, row.ours.unit).c_str(),
                ShowSpan(beside->low, beside->high, row.beside.unit).c_str(), label.c_str(),
                ratioText.c_str(), target.c_str(), Verdict(row.target, ratio).c_str());
}

}  // namespace

int RunWithRatios(int argc, char** argv, std::span<const Ratio> ratios) {
    std::string repetitions = "--benchmark_repetitions=5";
    std::string minTime = "--benchmark_min_time=0.02";
    std::string mixed = "--benchmark_enable_random_interleaving=true";
    std::vector<char*> arguments = {argv[0], repetitions.data(), minTime.data(), mixed.data()};
    arguments.insert(arguments.end(), argv + 1, argv + argc);  // later: what the user says holds
    arguments.push_back(nullptr);
    int count = static_cast<int>(arguments.size()) - 1;
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 1;

    Medians medians;
    benchmark::RunSpecifiedBenchmarks(&medians);
    benchmark::Shutdown();
    medians.Print();
    std::printf("\n%-52s %12s  %-20s %-30s %15s  %-16s\n", "question", "ours", "beside it", "", "ratio",
                "target");
    for (const Ratio& row : ratios) PrintRow(row, medians);
    return 0;
}

}  // namespace bench
