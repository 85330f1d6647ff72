#pragma once

#include "zelmat/mechanics/hyperelastic/StrainEnergy.h"

namespace zelmat::mechanics {

/// W of x = I1 - 3 and y = I2 - 3 with its derivatives, in the unit of the coefficients.
struct InvariantState {
    double w;
    double wx, wy;
    double wxx, wxy, wyy;
};

/// d/dc of W's two first derivatives, for one coefficient c.
struct InvariantForce {
    double wx, wy;
};

/// What the potentials that are functions of the two invariants share: the chain rule to logarithmic strains.
class InvariantEnergy : public StrainEnergy {
public:
    EnergyState At(const PrincipalStretches& stretches) const final;
    std::vector<std::array<double, 3>> CoefficientForces(const PrincipalStretches& stretches) const final;
    double ShearModulus() const final;  ///< 2 (dW/dI1 + dW/dI2) at rest

protected:
    virtual InvariantState Derivatives(double x, double y) const = 0;
    virtual std::vector<InvariantForce> CoefficientDerivatives(double x, double y) const = 0;
};

}  // namespace zelmat::mechanics
