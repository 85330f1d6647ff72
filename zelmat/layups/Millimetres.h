#pragma once

#include <string>

namespace zelmat {

/// A length in metres, to a millionth of a nanometre: what sums of thicknesses carry beyond that is no
/// information.
double WithoutNoiseOfSums(double metres);

/// The same as a number of millimetres.
std::string Millimetres(double metres);

}  // namespace zelmat
