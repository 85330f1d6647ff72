#pragma once

#include <optional>
#include <span>
#include <vector>

#include "zelmat/quantities/Quantity.h"
#include "zelmat/quantities/Unit.h"

namespace zelmat {

/// Takes numbers from one unit to another of the same dimension, in one step and from the original: a value
/// that went through two conversions has lost twice.
///
/// A pure factor is right to 2 units in the last place of the result; a temperature with an offset to 2 units
/// in the last place of the larger of value and offset. Within that, a number that was written with few
/// digits keeps them: 0.127 mm are the very number 0.000127 m, 20 degC are 293.15 K and 293.15 K are 20 degC.
/// Units of the same size leave every bit as it is.
class UnitConversion {
public:
    /// Both of the quantity's dimension. Offsets count for a point of a scale only.
    UnitConversion(const Unit& from, const Unit& to, bool isPoint);

    /// To what documents hold the quantity in.
    static UnitConversion ToStored(const Unit& from, const Quantity& quantity) {
        return {from, quantity.stored, quantity.isPoint};
    }

    /// From what documents hold it in.
    static UnitConversion FromStored(const Quantity& quantity, const Unit& to) {
        return {quantity.stored, to, quantity.isPoint};
    }

    /// Nothing when the result is beyond what a double holds, or so small that it would lose digits or become
    /// 0. What is not finite stays as it is.
    std::optional<double> operator()(double value) const;

    /// Value by value; the index of the first that cannot be converted, then `values` is converted up to
    /// there.
    std::optional<std::size_t> Convert(std::span<double> values) const;

    /// Nothing to do: the numbers stay as they are.
    bool IsIdentity() const { return factor_ == 1.0L && shift_ == 0.0L; }

private:
    long double factor_;
    long double shift_;  // in the unit of the result, added after the factor
};

}  // namespace zelmat
