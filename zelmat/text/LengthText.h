#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zelmat {

/// A length as users write it, a number and its unit ("0.125mm", "5e-3 in"), in metres. Nothing when it is no
/// such text; a bare number is none.
std::optional<double> ReadLength(std::string_view text);

/// The units that ReadLength knows: "m, mm, ...".
std::string LengthUnits();

/// A length in metres as a number of millimetres, to a millionth of a nanometre: what sums of thicknesses
/// carry beyond that is no information.
std::string Millimetres(double metres);

}  // namespace zelmat
