#include "zelmat/commands/WriteGate.h"

#include <CLI/CLI.hpp>

#include "zelmat/checks/Checks.h"

namespace zelmat {

void WriteGate::Declare(CLI::App& line) {
    line.add_flag("--keep-going", keepGoing_, "Go on with a card on which the checks find errors");
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

}  // namespace zelmat
