#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "zelmat/findings/Findings.h"

namespace zelmat {

/// `zelmat upgrade DOC`: reads a document's text form, brings the materials of older releases up to the
/// current one, in one step, and prints what changed. The document on disk stays as it is; the upgraded one
/// goes to another file if asked for, unless the run is refused because it would have to guess.
struct UpgradeCommand {
    std::string document;  ///< path of the text form
    std::string output;    ///< where the upgraded document goes; empty: nowhere
    std::string catalogs;  ///< folder of the feature catalogs
    /// Of the coefficients in a document that names none: "MPa". Empty: not given.
    std::string pressureUnit;
    bool json = false;  ///< one JSON object on standard output, findings included

    ExitCode Run(std::ostream& out, std::ostream& err) const;

    static std::vector<std::string> PressureUnits();  ///< those that there are
};

}  // namespace zelmat
