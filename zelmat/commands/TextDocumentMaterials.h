#pragma once

#include <string>
#include <vector>

#include "zelmat/findings/Findings.h"
#include "zelmat/materials/Material.h"

namespace zelmat {

/// Whether a text has what a document in its text form cannot be without, and a card has not.
bool IsTextDocument(const std::string& text);

/// The materials of a document in its text form. Those of an older release are brought up to date first, in
/// memory alone; none are answered, and findings say why, when that would be a guess. `catalogs`: the folder
/// of the feature catalogs. `name`: what findings call the file.
std::vector<Material> ReadTextDocument(const std::string& text, const std::string& name,
                                       const std::string& catalogs, Findings& findings);

}  // namespace zelmat
