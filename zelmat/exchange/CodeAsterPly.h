#pragma once

#include <string>

#include "zelmat/exchange/PlyNumbers.h"

namespace zelmat {

/// The factor ELAS_ORTH of DEFI_MATERIAU: of the constants across the ply those that are given; plates of the
/// classical theory need none.
std::string CodeAsterPly(const PlyNumbers& ply);

}  // namespace zelmat
