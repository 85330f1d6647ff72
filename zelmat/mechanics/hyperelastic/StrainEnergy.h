#pragma once

#include <array>
#include <memory>
#include <optional>
#include <vector>

#include "zelmat/mechanics/Outcome.h"
#include "zelmat/mechanics/hyperelastic/HyperelasticModel.h"
#include "zelmat/mechanics/hyperelastic/PrincipalStretches.h"

namespace zelmat::mechanics {

/// The energy per volume as a function of the logarithmic strains e1, e2, e3, with its derivatives. The
/// strains are taken as free of each other here: what keeps the volume only sees differences of the forces.
/// Unit: that of the coefficients (a stress).
struct EnergyState {
    double energy;
    std::array<double, 3> force;                     ///< dW/de_i: the Kirchhoff stresses but for a pressure
    std::array<std::array<double, 3>, 3> stiffness;  ///< d2W/de_i de_j
};

/// Where the chains of a network are fully drawn: (1 - beta) (I1 - 3) + beta (I2 - 3) = limit.
struct Locking {
    double limit;
    double beta;
    bool ends;  ///< true: there is no energy from there on; false: the formula goes on (a series, cut off)
};

/// A potential with its coefficients, incompressible. Not the volumetric part (VolumetricEnergy), and no row
/// of a table over temperature: one set of coefficients. Immutable.
class StrainEnergy {
public:
    virtual ~StrainEnergy() = default;

    /// False where the potential ends: at its locking stretch and beyond.
    bool IsDefinedAt(const PrincipalStretches& stretches) const;

    /// Only where the potential is defined.
    virtual EnergyState At(const PrincipalStretches& stretches) const = 0;

    /// d force_i / d coefficient, one entry a coefficient, in their order. Only where the potential is
    /// defined.
    virtual std::vector<std::array<double, 3>> CoefficientForces(
        const PrincipalStretches& stretches) const = 0;

    /// The shear modulus mu0 at small strain, in the unit of the coefficients.
    virtual double ShearModulus() const = 0;

    virtual std::optional<Locking> LockingLimit() const { return std::nullopt; }
};

/// The potential with these coefficients: as many, and in the order, as CoefficientNames says; the stresses
/// among them in any one unit of stress, in which everything is answered. OGDEN is in the form 2 mu_i /
/// alpha_i^2. Refuses a wrong number of coefficients, numbers that are not finite, lambda_m <= 0
/// (ARRUDA_BOYCE), lambda_m <= sqrt(3), beta outside 0 to 1 (VAN_DER_WAALS) and alpha_i = 0 (OGDEN).
Outcome<std::shared_ptr<const StrainEnergy>> MakeStrainEnergy(HyperelasticModel model, int order,
                                                              const std::vector<double>& coefficients);

}  // namespace zelmat::mechanics
