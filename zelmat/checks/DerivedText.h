#pragma once

#include <string>

namespace zelmat {

/// A number that follows from others, with its unit, in four digits: its last ones mean nothing to a reader.
std::string DerivedText(double number, const std::string& unit);

}  // namespace zelmat
