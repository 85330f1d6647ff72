#pragma once

#include <optional>

#include "zelmat/mechanics/hyperelastic/LoadingMode.h"
#include "zelmat/properties/HyperelasticProperty.h"

namespace zelmat {

/// The Cauchy stress of rubber in the loaded direction at stretch x (in SIMPLE_SHEAR the shear stress at the
/// amount of shear x), the faces that the mode leaves free being free of stress: with the material's own
/// compressibility, where it has one, by the split of the energy into a part of J^(-1/3) F and one of J. In
/// PLANAR and SIMPLE_SHEAR the direction across is held. Nothing where the potential has none.
std::optional<double> CompressibleStress(const HyperelasticAt& material, mechanics::LoadingMode mode,
                                         double x);

}  // namespace zelmat
