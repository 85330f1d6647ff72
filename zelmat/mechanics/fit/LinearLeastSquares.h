#pragma once

#include <vector>

namespace zelmat::mechanics {

/// The factors of the columns whose sum comes nearest to the target, by least squares; of the sets that come
/// equally near the shortest. Every column is as long as the target. With no columns: none.
std::vector<double> SolveLinear(const std::vector<std::vector<double>>& columns,
                                const std::vector<double>& target);

}  // namespace zelmat::mechanics
