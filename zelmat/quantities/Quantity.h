#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "zelmat/quantities/QuantityResult.h"
#include "zelmat/quantities/Unit.h"

namespace zelmat {

/// What a number of the field measures, whatever its unit: a stress, a density, a thermal expansion. It is no
/// column and no attribute: many of them hold a stress.
struct Quantity {
    /// As in "--units stress=MPa".
    std::string_view name;
    /// As in a message: "stiffness per area".
    std::string_view title;
    /// The quantity whose chosen unit it shares unless it has one of its own; or empty.
    std::string_view family;
    /// What documents hold it in.
    Unit stored;
    /// That would do, the usual ones first; any other of the dimension does as well.
    std::vector<Unit> units;
    /// A point of a scale, not a difference: "degC" converts with its offset.
    bool isPoint = false;
};

/// All of them, in the order in which they are listed.
std::span<const Quantity> Quantities();

/// By its name; null for an unknown one.
const Quantity* FindQuantity(std::string_view name);

/// What the catalog's unit of an attribute measures: "Pa" a stress, "kg/m3" a density, "K" a temperature.
/// Null when no quantity is stored in it.
const Quantity* FindQuantityStoredIn(std::string_view unit);

/// A unit's text for a quantity, with its dimension checked. The error names the quantity, the unit found and
/// the units that would do.
QuantityResult<Unit> ReadUnit(std::string_view text, const Quantity& quantity);

/// "Pa, kPa, MPa, GPa, N/mm^2, psi or ksi"
std::string UnitsThatDo(const Quantity& quantity);

}  // namespace zelmat
