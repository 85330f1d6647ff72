#include "zelmat/commands/frame/FindingPrinter.h"

#include <algorithm>
#include <map>

namespace zelmat {

namespace {

constexpr std::size_t kMostOfOneCode = 20;

const char* ColorOf(FindingKind kind) {
    if (kind == FindingKind::NOTE) return "\033[36m";
    return kind == FindingKind::WARNING ? "\033[33m" : "\033[31m";
}

/// "error[code]" with the line's colour, if it has one.
std::string InColor(const std::string& line, const Finding& finding, bool colored) {
    const std::string words = std::string(KindWord(finding.kind)) + "[" + finding.code + "]";
    const auto at = line.find(words);
    if (!colored || at == std::string::npos) return line;
    return line.substr(0, at) + ColorOf(finding.kind) + words + "\033[0m" + line.substr(at + words.size());
}

/// "99,980"
std::string Grouped(std::size_t number) {
    constexpr std::size_t kGroup = 3;
    std::string text = std::to_string(number);
    for (std::size_t at = text.size(); at > kGroup;) text.insert(at -= kGroup, ",");
    return text;
}

}  // namespace

void PrintFindings(std::ostream& out, const Findings& findings, bool colored) {
    std::map<std::string, std::size_t> count;
    for (const Finding& finding : findings.All()) ++count[finding.code];

    std::map<std::string, std::size_t> told;
    for (const Finding& finding : findings.All()) {
        const std::size_t number = ++told[finding.code];
        if (number > kMostOfOneCode) continue;
        out << InColor(FindingLine(finding), finding, colored) << '\n';
        const std::size_t left = count[finding.code] - number;
        if (number < kMostOfOneCode || left == 0) continue;
        out << InColor(std::string(KindWord(finding.kind)) + "[" + finding.code + "]", finding, colored)
            << ": and " << Grouped(left) << " more\n";
    }
}

}  // namespace zelmat
