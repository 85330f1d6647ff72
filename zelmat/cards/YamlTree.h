#pragma once

#include <memory>
#include <string>

#include "zelmat/files/PlacedJson.h"
#include "zelmat/findings/Findings.h"

namespace zelmat {

/// A YAML text as a tree with lines. Every scalar is a text; null is null. Refused are aliases and anchors,
/// which can blow a small text up without end, keys that are given twice or are no texts, several documents,
/// values nested deeper than 50 and more than 16 MiB. Null, and a finding, when the text is refused.
std::shared_ptr<const PlacedJson> ReadYamlTree(const std::string& text, const std::string& name,
                                               Findings& findings);

}  // namespace zelmat
