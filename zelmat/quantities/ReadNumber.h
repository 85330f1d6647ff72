#pragma once

#include <string_view>

#include "zelmat/quantities/QuantityResult.h"

namespace zelmat {

/// A number at the beginning of a text, and what stands behind it.
struct NumberAndRest {
    double number = 0.0;
    std::string_view rest;  ///< of the text that was read, which has to live as long
};

/// Decimal digits with a point, whatever the locale, with an exponent if need be: "7.85", "-.5", "+1e-6". The
/// nearest double. Refused are numbers beyond a double's range ("1e400"), numbers that would become 0
/// ("1e-400"), "nan", "inf", hexadecimal digits and a decimal comma.
QuantityResult<NumberAndRest> ReadLeadingNumber(std::string_view text);

/// The same where nothing but blanks may stand around the number.
QuantityResult<double> ReadNumber(std::string_view text);

}  // namespace zelmat
