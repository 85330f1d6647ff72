#pragma once

#include <vector>

#include "zelmat/mechanics/hyperelastic/StrainEnergy.h"

namespace zelmat::mechanics {

/// (2 mu / alpha^2) (l1^alpha + l2^alpha + l3^alpha - 3)
struct OgdenTerm {
    double mu;
    double alpha;
};

/// R. W. Ogden, Proc. R. Soc. Lond. A 326, 1972, in the convention in which the mu add up to the shear
/// modulus.
class OgdenEnergy final : public StrainEnergy {
public:
    explicit OgdenEnergy(std::vector<OgdenTerm> terms) : terms_(std::move(terms)) {}

    EnergyState At(const PrincipalStretches& stretches) const override;
    std::vector<std::array<double, 3>> CoefficientForces(const PrincipalStretches& stretches) const override;
    double ShearModulus() const override;

private:
    std::vector<OgdenTerm> terms_;
};

}  // namespace zelmat::mechanics
