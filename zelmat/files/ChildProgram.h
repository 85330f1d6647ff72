#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "zelmat/files/ScratchFolder.h"

namespace zelmat {

/// Another program that the house runs: never through a shell, so that no text is ever a command.
struct ChildProgram {
    std::string name;                       ///< "gnuplot", looked for in PATH
    std::vector<std::string> arguments;     ///< as they are
    std::string needed;                     ///< "drawing", for findings
    std::string package;                    ///< where to get it, for findings
    std::vector<std::string> without = {};  ///< settings that it does not get: "GNU" is all that begin so
    std::vector<std::string> with = {};     ///< settings that it gets in the place of the user's: "TZ=UTC0"
    int minutes = 5;                        ///< it is killed after these
    std::function<void(std::size_t seconds)> waited = {};  ///< is told every second how long it runs already
};

/// Runs it in a folder, waits for its end, with nothing on its standard input; what it says goes to files in
/// the folder. False, and a finding with the beginning of what it said, when it is not there, fails or is
/// killed, as it is when it takes too long; codes "program-missing" and "program-failed".
[[nodiscard]] bool RunChild(const ChildProgram& program, const ScratchFolder& folder, Findings& findings);

}  // namespace zelmat
