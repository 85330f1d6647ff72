#include "zelmat/findings/Findings.h"

#include <algorithm>

#include "zelmat/text/Printable.h"

namespace zelmat {

namespace {

bool Holds(const std::vector<Finding>& findings, FindingKind kind) {
    return std::any_of(findings.begin(), findings.end(),
                       [kind](const Finding& finding) { return finding.kind == kind; });
}

}  // namespace

const char* KindWord(FindingKind kind) {
    if (kind == FindingKind::NOTE) return "note";
    return kind == FindingKind::WARNING ? "warning" : "error";
}

std::string FindingLine(const Finding& finding) {
    std::string line = finding.place.file;
    if (finding.place.line > 0) line += ":" + std::to_string(finding.place.line);
    line += std::string(": ") + KindWord(finding.kind) + "[" + finding.code + "]: " + finding.text;
    const char* separator = " (";
    for (const std::string& detail : finding.details) {
        line += separator + detail;
        separator = ", ";
    }
    if (!finding.details.empty()) line += ")";
    return Printable(line);
}

void Findings::Add(const Findings& others) {
    all_.insert(all_.end(), others.all_.begin(), others.all_.end());
}

void Findings::RemoveAbout(const std::string& file) {
    std::erase_if(all_, [&](const Finding& finding) { return finding.place.file == file; });
}

std::vector<Finding> Findings::ByLine() const {
    std::vector<Finding> sorted = all_;
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const Finding& a, const Finding& b) { return a.place.line < b.place.line; });
    return sorted;
}

bool Findings::HasErrors() const {
    return std::any_of(all_.begin(), all_.end(), [](const Finding& finding) {
        return finding.kind != FindingKind::WARNING && finding.kind != FindingKind::NOTE;
    });
}

ExitCode Findings::Exit(bool strict) const {
    if (Holds(all_, FindingKind::UNREADABLE)) return EXIT_UNREADABLE;
    if (Holds(all_, FindingKind::USAGE)) return EXIT_USAGE;
    const bool count = HasErrors() || (strict && Holds(all_, FindingKind::WARNING));
    return count ? EXIT_FINDINGS : EXIT_CLEAN;
}

}  // namespace zelmat
