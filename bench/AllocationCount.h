#pragma once

#include <cstdint>

namespace bench {

/// How often this program has called operator new so far. Counting is on in every program that links this
/// file.
std::uint64_t Allocations();

}  // namespace bench
