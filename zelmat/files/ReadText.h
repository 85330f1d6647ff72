#pragma once

#include <optional>
#include <string>

#include "zelmat/findings/Findings.h"

namespace zelmat {

/// How findings name a file: "-" is standard input.
std::string ShownPath(const std::string& path);

/// All bytes of a file, or of standard input for "-". Nothing, and a finding, when it cannot be read or holds
/// more than 1 GiB.
std::optional<std::string> ReadText(const std::string& path, Findings& findings);

}  // namespace zelmat
