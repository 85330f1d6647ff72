#pragma once

#include <cstddef>
#include <string>

namespace zelmat {

/// "1 row", "2 rows"
std::string CountText(std::size_t count, const std::string& noun);

}  // namespace zelmat
