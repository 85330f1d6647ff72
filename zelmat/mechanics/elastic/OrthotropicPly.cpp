#include "zelmat/mechanics/elastic/OrthotropicPly.h"

#include <cmath>

namespace zelmat::mechanics {

std::optional<Refusal> UnstablePly(const OrthotropicPly& ply) {
    for (const double modulus : {ply.e1, ply.e2, ply.g12}) {
        if (!std::isfinite(modulus) || modulus <= 0.0)
            return Refusal{"E1, E2 and G12 of a ply have to be above 0"};
    }
    if (!(std::abs(ply.nu12) < std::sqrt(ply.e1 / ply.e2))) {
        return Refusal{"nu12 of a ply has to lie between -sqrt(E1/E2) and sqrt(E1/E2)"};
    }
    return std::nullopt;
}

OrthotropicPly IsotropicPly(const IsotropicElasticity& elasticity) {
    return {.e1 = elasticity.youngsModulus,
            .e2 = elasticity.youngsModulus,
            .nu12 = elasticity.poissonsRatio,
            .g12 = elasticity.shearModulus};
}

}  // namespace zelmat::mechanics
