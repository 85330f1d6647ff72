#pragma once

#include "zelmat/findings/Findings.h"
#include "zelmat/materials/Material.h"
#include "zelmat/mechanics/hyperelastic/OgdenConvention.h"

namespace zelmat {

/// The convention of a fit's coefficients: by its `ogden_convention`, else by the formula in the free text of
/// `potential` when that has one, else the stored one.
mechanics::OgdenConvention OgdenConventionOfFit(const Block& fit);

/// Ogden's model with coefficients in the convention that is not stored.
bool IsOtherOgden(const Block& block);

/// The same material with the coefficients as they are stored: mu' = mu alpha / 2. Tells it as a note.
Block ToStoredOgden(const Block& fit, const Material& material, Findings& findings);

}  // namespace zelmat
