#include "zelmat/commands/frame/WriteGate.h"

#include <set>

#include "zelmat/checks/Checks.h"
#include "zelmat/commands/frame/Arguments.h"

namespace zelmat {

void WriteGate::Declare(Arguments& line) {
    line.AddFlag("--keep-going", keepGoing_, "Go on with a card on which the checks find errors");
}

bool WriteGate::Passes(const Material& material, Findings& findings) const {
    const Findings found = CheckMaterial(material);
    findings.Add(found);
    return keepGoing_ || !found.HasErrors();
}

bool WriteGate::Passes(const LayupCard& layup, Findings& findings) const {
    bool good = true;
    const Findings found = CheckLayup(layup);
    for (const Finding& finding : found.All()) {
        // The document's layup answers these itself, with its status.
        if (finding.code == "no-layers" || finding.code == "layer-material") continue;
        good = good && finding.kind == FindingKind::WARNING;
        findings.Add(finding);
    }
    return keepGoing_ || good;
}

bool WriteGate::PassesChange(const Material& before, const Material& now, Findings& findings) const {
    std::multiset<std::string> known;
    const Findings old = CheckMaterial(before);
    for (const Finding& finding : old.All()) known.insert(FindingLine(finding));
    const Findings found = CheckMaterial(now);
    Findings fresh;
    for (const Finding& finding : found.All()) {
        const auto same = known.find(FindingLine(finding));
        if (same == known.end()) {
            fresh.Add(finding);
        } else {
            known.erase(same);
        }
    }
    findings.Add(fresh);
    return keepGoing_ || !fresh.HasErrors();
}

}  // namespace zelmat
