#include "zelmat/quantities/ShownQuantity.h"

#include <limits>

#include "zelmat/quantities/NumberText.h"

namespace zelmat {

ShownQuantity::ShownQuantity(std::string_view quantity, const UnitChoice& units)
    : ShownQuantity(*FindQuantity(quantity), units) {}

ShownQuantity::ShownQuantity(const Quantity& quantity, const UnitChoice& units)
    : unit_(units.For(quantity)), conversion_(UnitConversion::FromStored(quantity, unit_)) {}

double ShownQuantity::operator()(double stored) const {
    return conversion_(stored).value_or(std::numeric_limits<double>::quiet_NaN());
}

std::string ShownQuantity::Text(double stored, int digits) const {
    const std::string number = RoundedText((*this)(stored), digits);
    return Unit() == "-" ? number : number + " " + Unit();
}

}  // namespace zelmat
