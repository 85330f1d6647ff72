#pragma once

#include <optional>
#include <string>

#include "zelmat/findings/Findings.h"

namespace zelmat {

/// The cards of the only material of a CalculiX deck, from its *MATERIAL to the next keyword that describes
/// none, without comments, as they stand there. Nothing, and a finding, when the file cannot be read, or has
/// no material or more than one.
std::optional<std::string> CalculixCardsOf(const std::string& path, Findings& findings);

}  // namespace zelmat
