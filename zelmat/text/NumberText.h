#pragma once

#include <string>

namespace zelmat {

/// A number in the fewest digits that read back as exactly the same double; always with a decimal point,
/// never with a locale's comma.
std::string NumberText(double number);

/// The same with its unit: "293.15 K". "-" and the empty text are no unit.
std::string WithUnit(double number, const std::string& unit);

/// "1 row", "2 rows"
std::string CountText(std::size_t count, const std::string& noun);

}  // namespace zelmat
