#pragma once

#include <string>
#include <string_view>

#include "zelmat/quantities/UnitChoice.h"
#include "zelmat/quantities/UnitConversion.h"

namespace zelmat {

/// Numbers of one quantity, stored as documents hold them, in the unit that was chosen for it.
class ShownQuantity {
public:
    /// `quantity`: by its name; one that there is.
    ShownQuantity(std::string_view quantity, const UnitChoice& units);
    ShownQuantity(const Quantity& quantity, const UnitChoice& units);

    const std::string& Unit() const { return unit_.Spelling(); }

    /// Not a number where the unit cannot hold it.
    double operator()(double stored) const;

    /// "20 degC", in so many digits.
    std::string Text(double stored, int digits) const;

private:
    zelmat::Unit unit_;
    UnitConversion conversion_;
};

}  // namespace zelmat
