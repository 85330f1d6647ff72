#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zelmat {

/// Why a text cannot be what a material or layup is called, as a sentence; nothing when it can. Refused are
/// texts by which nobody could ask for it again: without a letter, with a NUL (which ends a name elsewhere),
/// not UTF-8 (no card could say it), and "#3", which means the third.
std::optional<std::string> NameProblem(std::string_view name);

}  // namespace zelmat
