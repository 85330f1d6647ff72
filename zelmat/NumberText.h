#pragma once

#include <string>

namespace zelmat {

/// A number in the fewest digits that read back as exactly the same double; always with a decimal point,
/// never with a locale's comma.
std::string NumberText(double number);

}  // namespace zelmat
