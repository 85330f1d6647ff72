#pragma once

#include <string>

#include "zelmat/quantities/NumberText.h"

namespace zelmat {

/// A number with its unit: "293.15 K". "-" and the empty text are no unit.
std::string WithUnit(double number, const std::string& unit);

/// "1 row", "2 rows"
std::string CountText(std::size_t count, const std::string& noun);

}  // namespace zelmat
