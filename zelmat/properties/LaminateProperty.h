#pragma once

#include <string>
#include <utility>
#include <vector>

#include "zelmat/layups/LayupCard.h"
#include "zelmat/materials/Material.h"
#include "zelmat/mechanics/laminate/Laminate.h"

namespace zelmat {

/// Constants of a ply by their names, as PlyConstants has them, in the stored units.
using NamedConstants = std::vector<std::pair<std::string, double>>;

/// A ply material from named constants: E1, E2, nu12 and G12, or E and nu of an isotropic one; alpha1 and
/// alpha2, or alpha, or none of them; density; all of Xt, Xc, Yt, Yc and S or none. Moduli and
/// strengths in Pa, expansion in 1/K. Refused where one of these is missing, and as UnstablePly refuses.
mechanics::Outcome<mechanics::PlyMaterial> PlyMaterialOf(const NamedConstants& constants);

/// The constants of PlyOfMaterial, of a material whose blocks do not depend on temperature.
NamedConstants PlyConstantsOf(const Material& material);

/// The laminate of a layup: m, Pa, degrees, bottom first; its materials are those that layers are of, in the
/// order in which these need them. Refused where a layer has no material, as PlyMaterialOf refuses, naming
/// the material, and as LaminateFault.
mechanics::Outcome<mechanics::Laminate> LaminateOf(const LayupCard& layup);

}  // namespace zelmat
