#pragma once

#include <string>
#include <string_view>

namespace zelmat {

/// The one key of a value of a card, which people name in many ways:
///
///     E, elastic.E, Linear Elastic.Young's modulus     elastic.youngs_modulus
///     rho, density.density                             density
///     expansion.Tref                                   thermal_expansion.reference_temperature
///
/// What it does not know comes back as it is.
std::string CardKey(std::string_view key);

}  // namespace zelmat
