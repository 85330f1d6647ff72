#pragma once

#include <optional>
#include <string>

#include "zelmat/findings/Findings.h"

namespace zelmat {

/// A page as a PDF, printed by Chromium without a window and without a network. Nothing, and a finding, when
/// it is missing or fails.
std::optional<std::string> PrintedPage(const std::string& html, Findings& findings);

}  // namespace zelmat
