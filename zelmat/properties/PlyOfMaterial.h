#pragma once

#include <optional>

#include "zelmat/layups/LayupCard.h"
#include "zelmat/materials/Material.h"

namespace zelmat {

/// The temperature of a laminate, and how far it has changed to there from the one without stress; K.
struct PlyTemperature {
    std::optional<double> temperature;
    double change = 0.0;
};

/// What a material says of a ply: the constants that it keeps (E1, Xt, ...), else those of an isotropic ply
/// by its elastic block, its expansion and its density. Those blocks may depend on temperature: then they are
/// taken at `at.temperature`, linear between rows, and the expansion is the mean coefficient (linearised)
/// from there less `at.change`. A block that gives no number so is named in `lacking`, with the reason.
PlyMaterial PlyOfMaterial(const Material& material, const PlyTemperature& at = {});

}  // namespace zelmat
