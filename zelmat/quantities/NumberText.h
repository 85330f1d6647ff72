#pragma once

#include <string>

namespace zelmat {

/// A number in the fewest characters that read back as exactly the same double, with a decimal point in every
/// locale: "0.3", "2.1e+11", "-0".
std::string NumberText(double number);

/// The nearest double of so many significant digits (1 to 17), for what a reader is shown and nobody computes
/// with; no minus zero.
double RoundedTo(double number, int digits);

/// The same as a text, plain up to so many digits before the point: "100000" of 6, "1.2e-05".
std::string RoundedText(double number, int digits);

/// A number with its unit: "293.15 K". "-" and the empty text are no unit.
std::string WithUnit(double number, const std::string& unit);

}  // namespace zelmat
