#pragma once

#include <string>
#include <string_view>

#include "zelmat/quantities/Quantity.h"
#include "zelmat/quantities/QuantityResult.h"
#include "zelmat/quantities/Unit.h"

namespace zelmat {

/// A number with its unit, as it was written: "7.85 g/cm^3". Nothing is converted before somebody asks, and
/// then from here.
struct Measured {
    double number = 0.0;
    Unit unit;

    /// In what documents hold the quantity in; the unit has to be of the quantity's dimension. The error says
    /// that a double does not hold it.
    QuantityResult<double> Stored(const Quantity& quantity) const;

    /// "7.85 g/cm^3": the shortest number that reads back as the same, the unit as it was spelled. Without a
    /// unit where it is "-".
    std::string Text() const;
};

/// A number and a unit, with or without a blank between: "210GPa", "20 degC", "12e-6 /K". A bare number has
/// no unit and is refused.
QuantityResult<Measured> ReadMeasured(std::string_view text);

/// The same for a quantity, with the dimension checked. A bare number does where the quantity is a pure
/// number.
QuantityResult<Measured> ReadMeasured(std::string_view text, const Quantity& quantity);

}  // namespace zelmat
