#pragma once

#include <string_view>

namespace zelmat {

/// The forms of cards that are read.
enum class CardFormKind { JSON, CSV, FCMAT_INI, FCMAT_YAML };

/// The form of a card, told by how its text begins. What begins like none is JSON, whose reader then says
/// what is wrong.
CardFormKind CardFormOf(std::string_view text);

}  // namespace zelmat
