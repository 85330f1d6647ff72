#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zelmat {

/// A unit's text in plain letters: "°C" becomes "degC", "µ" "u", "Ω" "Ohm", "·" "*", "m²" "m^2", "%"
/// "percent", a no-break space a blank. Nothing when another character is left that is not printable ASCII.
std::optional<std::string> PlainUnitText(std::string_view text);

/// Without the blanks, tabs and no-break spaces around it.
std::string_view WithoutBlanksAround(std::string_view text);

}  // namespace zelmat
