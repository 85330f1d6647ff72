#pragma once

#include <optional>
#include <string>

#include "zelmat/commands/frame/Progress.h"
#include "zelmat/findings/Findings.h"

namespace zelmat {

/// A page as a PDF, printed by Chromium without a window and without a network. Nothing, and a finding, when
/// it is missing or fails. Chromium does not say how far it is: `progress` tells for how long it works.
std::optional<std::string> PrintedPage(const std::string& html, Progress& progress, Findings& findings);

}  // namespace zelmat
