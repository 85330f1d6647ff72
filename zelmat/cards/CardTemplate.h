#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace zelmat {

/// A card to fill in: the blocks of a usual material with null in the place of each number, and beside each a
/// "//" key that says what it is. Made from what the program knows of blocks, columns and units. Reading it
/// as it is finds every number that is still missing.
nlohmann::ordered_json CardTemplate(const std::string& name);

}  // namespace zelmat
