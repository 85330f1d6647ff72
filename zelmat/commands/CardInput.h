#pragma once

#include <optional>
#include <string>

#include "zelmat/findings/Findings.h"
#include "zelmat/materials/Material.h"

namespace zelmat {

/// The material card that a command was given. Nothing, and findings, when it cannot be read; when the file
/// is another form of the house, the finding names the command that reads it.
std::optional<Material> ReadGivenCard(const std::string& path, Findings& findings);

}  // namespace zelmat
