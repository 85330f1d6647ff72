#pragma once

#include <optional>

#include "zelmat/mechanics/Outcome.h"
#include "zelmat/mechanics/elastic/IsotropicElasticity.h"

namespace zelmat::mechanics {

/// The in-plane elastic constants of a ply: 1 along the fibre, 2 across it. Moduli in one unit of stress.
struct OrthotropicPly {
    double e1, e2;
    double nu12;  ///< contraction in 2 under stress in 1; nu21 = nu12 e2/e1
    double g12;
};

/// Why a ply is none, or nothing: e1, e2, g12 > 0 and |nu12| < sqrt(e1/e2) make its strain energy positive.
std::optional<Refusal> UnstablePly(const OrthotropicPly& ply);

/// A ply of an isotropic material: g12 = E / (2 (1 + nu)).
OrthotropicPly IsotropicPly(const IsotropicElasticity& elasticity);

}  // namespace zelmat::mechanics
