#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/materials/Material.h"

namespace zelmat {

/// A number that a material came with and no behavior takes: kept under a name that means a quantity in the
/// field. `names` are compared without case, blanks, `_` and `-`: "shear_modulus" finds "ShearModulus"; but
/// those of one or two letters are symbols and compared as written: K is no k. The
/// value is a plain number in the stored unit of `quantity`, or a text with its unit ("79 GPa"); it may stand
/// in a group of such values. Nothing when there is none, or none that can be read.
std::optional<double> OtherNumber(const Material& material, const std::vector<std::string>& names,
                                  const char* quantity);

/// The same among what one block keeps.
std::optional<double> OtherNumber(const std::vector<KeptValue>& kept, const std::vector<std::string>& names,
                                  const char* quantity);

}  // namespace zelmat
