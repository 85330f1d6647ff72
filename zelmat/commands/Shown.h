#pragma once

#include <limits>
#include <nlohmann/json.hpp>
#include <string>

#include "zelmat/quantities/NumberText.h"
#include "zelmat/quantities/UnitChoice.h"
#include "zelmat/quantities/UnitConversion.h"

namespace zelmat {

/// Numbers of one quantity, in the unit that was chosen for it.
class Shown {
public:
    Shown(const Quantity& quantity, const UnitChoice& units)
        : unit_(units.For(quantity)), conversion_(UnitConversion::FromStored(quantity, unit_)) {}

    const std::string& Unit() const { return unit_.Spelling(); }

    /// Not a number where the unit cannot hold it.
    double operator()(double stored) const {
        // An offset that leaves nothing may leave -0.
        return conversion_(stored).value_or(std::numeric_limits<double>::quiet_NaN()) + 0.0;
    }

    std::string Text(double stored) const { return WithUnit((*this)(stored), Unit()); }
    nlohmann::ordered_json Json(double stored) const {
        return {{"value", (*this)(stored)}, {"unit", Unit()}};
    }

private:
    zelmat::Unit unit_;
    UnitConversion conversion_;
};

}  // namespace zelmat
