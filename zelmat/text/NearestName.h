#pragma once

#include <string>
#include <vector>

namespace zelmat {

/// The name that a misspelt one most likely means: the one with the fewest letters added, left out, exchanged
/// or swapped with their neighbour. Empty when none is near, which is within a third of the letters.
std::string NearestName(const std::string& misspelt, const std::vector<std::string>& names);

}  // namespace zelmat
