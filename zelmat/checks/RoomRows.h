#pragma once

#include <vector>

#include "zelmat/materials/Table.h"

namespace zelmat {

/// The rows of a table near room temperature, from 250 K to 350 K; where there is none, the one nearest to
/// 293.15 K; all of them where the table has no temperatures. Published bands are for room temperature, and
/// tables go from cold to melting. Empty only for a table without rows.
std::vector<std::size_t> RoomRows(const Table& table);

}  // namespace zelmat
