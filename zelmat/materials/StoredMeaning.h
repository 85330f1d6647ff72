#pragma once

#include <optional>

#include "zelmat/findings/Findings.h"
#include "zelmat/materials/Material.h"

namespace zelmat {

/// A document has one meaning for a hardening curve, true stress over plastic strain, and one for Ogden's
/// coefficients, 2 mu/alpha^2. A block can come in others and says so by `stress`, `strain` and
/// `ogden_convention`.
bool IsInStoredMeaning(const Block& block);

/// The block as a document holds it, every conversion told as a note. A hardening curve needs Young's modulus
/// at its temperature, from the material's elastic block. Its points before yield are left out, with a
/// warning: the last point whose plastic strain is no more than a hundredth of its elastic strain is the
/// yield point and gets the plastic strain 0. Nothing, and an error, where that cannot be done.
std::optional<Block> ToStoredMeaning(const Block& block, const Material& material, Findings& findings);

}  // namespace zelmat
