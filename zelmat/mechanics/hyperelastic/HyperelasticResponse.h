#pragma once

#include <vector>

#include "zelmat/mechanics/Outcome.h"
#include "zelmat/mechanics/hyperelastic/LoadingMode.h"
#include "zelmat/mechanics/hyperelastic/StrainEnergy.h"

namespace zelmat::mechanics {

/// What an incompressible rubber answers at one stretch; all in the unit of the coefficients.
struct HyperelasticResponse {
    double energy;         ///< per volume
    double nominalStress;  ///< force by undeformed area; in EQUIBIAXIAL that of one of the two directions
    double
        trueStress;  ///< force by deformed area; in SIMPLE_SHEAR the shear stress, equal to the nominal one
    double tangent;  ///< d nominalStress / dx along the path
    bool
        beyondLocking;  ///< past the stretch at which the chains are fully drawn, where only a series goes on
};

/// The response at stretch x (in SIMPLE_SHEAR: amount of shear x), the faces that the mode leaves free being
/// free of stress. Refused where the stretch cannot be, where the potential ends (its locking stretch), and
/// where a number grows out of the range of a double.
Outcome<HyperelasticResponse> Respond(const StrainEnergy& energy, LoadingMode mode, double x);

/// d nominalStress / d coefficient, in the order of the coefficients; empty where Respond refuses for the
/// stretch or the potential's end.
std::vector<double> NominalStressByCoefficient(const StrainEnergy& energy, LoadingMode mode, double x);

/// The stretches (amounts of shear) at which the chains are fully drawn along a mode's path, on both sides of
/// rest. The potential ends there, or, where `ends` is false, goes on as a series. In SIMPLE_SHEAR lower =
/// -upper.
struct LockingStretch {
    double lower;
    double upper;
    bool ends;
};

/// Nothing for a potential that does not lock.
std::optional<LockingStretch> LockingStretchOf(const StrainEnergy& energy, LoadingMode mode);

}  // namespace zelmat::mechanics
