#pragma once

#include <vector>

#include "zelmat/materials/Material.h"
#include "zelmat/pictures/Picture.h"
#include "zelmat/quantities/UnitChoice.h"

namespace zelmat {

/// Pressure over closure of a gasket, loading and unloading: a picture for each kind of unloading that the
/// block has (one of loading alone without any) at each temperature of the loading table.
std::vector<Picture> GasketPictures(const Material& material, const Block& gasket, const UnitChoice& units);

}  // namespace zelmat
