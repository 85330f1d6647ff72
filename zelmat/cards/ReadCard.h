#pragma once

#include <optional>
#include <string>

#include "zelmat/findings/Findings.h"
#include "zelmat/materials/Material.h"

namespace zelmat {

/// Reads a material card. The one place that knows which forms of cards there are and which reader each has;
/// the form is told by the file's content, never by its name. Nothing, and findings, when it cannot be read.
std::optional<Material> ReadCard(const std::string& path, Findings& findings);

}  // namespace zelmat
