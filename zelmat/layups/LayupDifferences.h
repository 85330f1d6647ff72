#pragma once

#include <vector>

#include "zelmat/layups/LayupCard.h"
#include "zelmat/materials/Differences.h"

namespace zelmat {

/// Every value in which two layups differ, as their cards have them: keys are a card's, layers the rows.
/// Numbers differ when those that are stored do; they are told in the units chosen, or as they are stored
/// where the units make them look the same.
std::vector<Difference> LayupDifferences(const LayupCard& before, const LayupCard& after,
                                         const UnitChoice& units);

}  // namespace zelmat
