#pragma once

#include <string>
#include <vector>

namespace zelmat {

/// The name that a misspelt one most likely means: the one with the fewest letters added, left out, exchanged
/// or swapped with their neighbour, before all the one that differs in capitals alone. Empty when none is
/// near, which is within a third of the letters.
std::string NearestName(const std::string& misspelt, const std::vector<std::string>& names);

/// The names that somebody most likely meant who wrote only a part of one, or misspelt that: those in which
/// the text, or something near it, begins at a word, the nearest first, capital letters or not. At most
/// `most`; none when none is near.
std::vector<std::string> NearestNames(const std::string& part, const std::vector<std::string>& names,
                                      std::size_t most);

}  // namespace zelmat
