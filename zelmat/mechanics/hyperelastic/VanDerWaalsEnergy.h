#pragma once

#include "zelmat/mechanics/hyperelastic/InvariantEnergy.h"

namespace zelmat::mechanics {

/// W = mu { -(lambda_m^2 - 3) [ln(1 - eta) + eta] - (2/3) a ((I - 3)/2)^(3/2) }, I = (1 - beta) I1 + beta I2,
/// eta = sqrt((I - 3)/(lambda_m^2 - 3)). Ends at I = lambda_m^2: from there on there is no energy.
/// H.-G. Kilian, Polymer 22, 1981, pp. 209-217.
class VanDerWaalsEnergy final : public InvariantEnergy {
public:
    VanDerWaalsEnergy(double mu, double lockingStretch, double attraction, double beta)
        : mu_(mu), lockingStretch_(lockingStretch), attraction_(attraction), beta_(beta) {}

    std::optional<Locking> LockingLimit() const override;

private:
    InvariantState Derivatives(double x, double y) const override;
    std::vector<InvariantForce> CoefficientDerivatives(double x, double y) const override;
    /// The invariant I - 3 and what the energy and its derivatives by it are made of, without the factor mu.
    struct Chain {
        double mixed, eta, root, slope, bend;
    };
    Chain ChainAt(double x, double y) const;
    double Limit() const { return lockingStretch_ * lockingStretch_ - 3.0; }

    double mu_;
    double lockingStretch_;
    double attraction_;
    double beta_;
};

}  // namespace zelmat::mechanics
