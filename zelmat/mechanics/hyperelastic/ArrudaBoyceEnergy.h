#pragma once

#include "zelmat/mechanics/hyperelastic/InvariantEnergy.h"

namespace zelmat::mechanics {

/// The eight-chain model, its inverse Langevin function developed to five terms:
/// W = mu sum Ci / lambda_m^(2i-2) (I1^i - 3^i), Ci = 1/2, 1/20, 11/1050, 19/7000, 519/673750.
/// mu is not the shear modulus at small strain. The chains are fully drawn at I1 = 3 lambda_m^2; the series
/// goes on beyond. E. M. Arruda and M. C. Boyce, J. Mech. Phys. Solids 41, 1993.
class ArrudaBoyceEnergy final : public InvariantEnergy {
public:
    ArrudaBoyceEnergy(double mu, double lockingStretch) : mu_(mu), lockingStretch_(lockingStretch) {}

    std::optional<Locking> LockingLimit() const override;

private:
    InvariantState Derivatives(double x, double y) const override;
    std::vector<InvariantForce> CoefficientDerivatives(double x, double y) const override;

    double mu_;
    double lockingStretch_;
};

}  // namespace zelmat::mechanics
