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

}  // namespace zelmat
