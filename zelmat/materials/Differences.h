#pragma once

#include <string>
#include <vector>

#include "zelmat/materials/Material.h"
#include "zelmat/quantities/UnitChoice.h"

namespace zelmat {

/// What one of two materials has for a value.
struct DifferenceSide {
    std::string text;  ///< number, flag or text; empty: it has none
    std::string unit;  ///< empty: none
};

/// One value in which two materials differ.
struct Difference {
    std::string key;      ///< as a card names it: "elastic.youngs_modulus"
    std::size_t row = 0;  ///< of a table, from 1; 0: no row
    DifferenceSide before;
    DifferenceSide after;
};

/// Every value in which two materials differ, in the order of reports. Numbers differ when a bit of what is
/// stored does; they are told in the units chosen, or as they are stored where the units make them look the
/// same. How a number was written is no difference.
std::vector<Difference> Differences(const Material& before, const Material& after, const UnitChoice& units);

}  // namespace zelmat
