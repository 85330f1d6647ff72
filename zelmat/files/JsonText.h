#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace zelmat {

/// JSON for reading: an object's members on lines of their own, a list of numbers and texts on one. Numbers
/// in the fewest digits that read back as the same double; bytes that are no UTF-8 become the replacement
/// character.
std::string JsonText(const nlohmann::ordered_json& value);

}  // namespace zelmat
