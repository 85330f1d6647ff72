#pragma once

#include <optional>

#include "zelmat/materials/Material.h"
#include "zelmat/mechanics/Outcome.h"
#include "zelmat/pictures/Picture.h"
#include "zelmat/quantities/UnitChoice.h"

namespace zelmat {

/// True stress over plastic strain, a curve for each temperature; of more than twelve, twelve of them. Of
/// Johnson and Cook's law up to a plastic strain of 0.5, at four temperatures from the transition temperature
/// up. `plastic`: the block in the stored meaning. Refused as HardeningOf refuses.
mechanics::Outcome<Picture> HardeningPicture(const Material& material, const Block& plastic,
                                             const UnitChoice& units);

}  // namespace zelmat
