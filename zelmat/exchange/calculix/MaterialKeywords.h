#pragma once

#include <string>

namespace zelmat {

/// Whether a keyword stands behind *MATERIAL and describes it, whether or not a card has a place for it. In
/// capital letters and without blanks: "*SPECIFICHEAT".
bool IsMaterialKeyword(const std::string& keyword);

}  // namespace zelmat
