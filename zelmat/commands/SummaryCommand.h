#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "zelmat/findings/Findings.h"

namespace zelmat {

/// `zelmat summary CARD...`: puts the materials of several cards into one document in memory and prints one
/// line for each: what is switched on with how many rows, how many features it made, and notes. A card with a
/// mistake is left out; its findings say why. Keeps nothing on disk.
struct SummaryCommand {
    std::vector<std::string> cards;  ///< paths
    std::string catalogs;            ///< folder of the feature catalogs
    bool json = false;               ///< one JSON object on standard output, findings included

    ExitCode Run(std::ostream& out, std::ostream& err) const;
};

}  // namespace zelmat
