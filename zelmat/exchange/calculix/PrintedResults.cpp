#include "zelmat/exchange/calculix/PrintedResults.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "zelmat/cards/TextLines.h"

namespace zelmat {

namespace {

/// Numbers between blanks; empty where something else stands among them.
std::vector<double> Numbers(std::string_view line) {
    std::vector<double> numbers;
    for (;;) {
        const std::size_t begin = line.find_first_not_of(' ');
        if (begin == std::string_view::npos) return numbers;
        line.remove_prefix(begin);
        double number = 0.0;
        const auto [end, error] = std::from_chars(line.data(), line.data() + line.size(), number);
        if (error != std::errc() && error != std::errc::result_out_of_range) return {};
        numbers.push_back(number);
        line.remove_prefix(static_cast<std::size_t>(end - line.data()));
    }
}

}  // namespace

PrintedResults::PrintedResults(std::string_view text) {
    constexpr std::string_view kSet = " for set", kTime = " and time ";
    TextLines lines(text);
    while (lines.Next()) {
        const std::string_view line = lines.Line();
        const std::size_t set = line.find(kSet), time = line.find(kTime);
        if (set != std::string_view::npos && time != std::string_view::npos) {
            const auto times = Numbers(line.substr(time + kTime.size()));
            std::string name(line.substr(set + kSet.size(), time - set - kSet.size()));
            std::erase(name, ' ');  // "for setEALL" is printed, too
            tables_.push_back({std::string(line.substr(line.find_first_not_of(' '))),
                               name,
                               times.empty() ? 0.0 : times.front(),
                               {}});
        } else if (!tables_.empty()) {
            auto numbers = Numbers(line);
            if (!numbers.empty()) tables_.back().rows.push_back(std::move(numbers));
        }
    }
}

std::optional<double> PrintedResults::Find(std::string_view kind, const std::string& set, double time,
                                           int entity, std::size_t column) const {
    const auto table = std::find_if(tables_.rbegin(), tables_.rend(), [&](const Printed& one) {
        return one.set == set && std::string_view(one.kind).starts_with(kind) &&
               std::fabs(one.time - time) < 1e-6 * std::max(1.0, time);
    });
    if (table == tables_.rend()) return std::nullopt;
    for (const auto& row : table->rows) {
        if (row.front() == entity && column + 1 < row.size()) return row[column + 1];
    }
    return std::nullopt;
}

}  // namespace zelmat
