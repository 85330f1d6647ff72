#pragma once

#include <string>

namespace zelmat {

/// A length in metres as a number of millimetres, to a millionth of a nanometre: what sums of thicknesses
/// carry beyond that is no information.
std::string Millimetres(double metres);

}  // namespace zelmat
