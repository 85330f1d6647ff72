#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/findings/Findings.h"

namespace zelmat {

/// Which of several materials the user means: by its name, by a beginning of it that no other has, or as
/// "#number", counted from 1 in the order of `names`. A whole name comes before a beginning and before a
/// number. Nothing, and a finding about `file` that lists the nearest names, when it is none of them or not
/// one alone. `noun`: what messages call them.
std::optional<std::size_t> ChooseMaterial(const std::vector<std::string>& names, const std::string& wanted,
                                          const std::string& file, Findings& findings,
                                          const std::string& noun = "material");

}  // namespace zelmat
