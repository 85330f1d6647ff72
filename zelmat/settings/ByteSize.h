#pragma once

#include <cstdint>
#include <string_view>

#include "zelmat/quantities/QuantityResult.h"

namespace zelmat {

/// A number of bytes as people write it: "64MB", "1.5 GB", "67108864". kB, MB and GB are 1024, 1024 * 1024
/// and 1024 * 1024 * 1024 bytes, also as KiB, MiB and GiB. Refused are negative numbers, more than 1024 *
/// 1024 GB and other words.
QuantityResult<std::int64_t> ReadByteSize(std::string_view text);

}  // namespace zelmat
