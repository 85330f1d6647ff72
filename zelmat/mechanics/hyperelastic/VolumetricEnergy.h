#pragma once

#include <vector>

#include "zelmat/mechanics/Outcome.h"
#include "zelmat/mechanics/hyperelastic/HyperelasticModel.h"

namespace zelmat::mechanics {

/// The energy of a change of volume and its first two derivatives by J; the second at J = 1 is the bulk
/// modulus K0. Unit: the inverse of that of D.
struct VolumetricState {
    double energy;
    double slope;  ///< the mean true stress
    double bend;
};

/// The part of the energy that depends on the ratio of volumes J alone: sum (J-1)^(2i)/D_i, for ARRUDA_BOYCE
/// and VAN_DER_WAALS ((J^2-1)/2 - ln J)/D. A D of 0 leaves its term out; D1 = 0 is an incompressible
/// material.
class VolumetricEnergy {
public:
    /// D1, D2, ... in the inverse of any unit of stress.
    VolumetricEnergy(HyperelasticModel model, std::vector<double> compressibilities);

    bool IsIncompressible() const { return compressibilities_.empty() || compressibilities_.front() == 0.0; }

    /// K0 = 2/D1. Refused for an incompressible material: its bulk modulus has no number.
    Outcome<double> BulkModulus() const;

    /// Refused for an incompressible material, and for J not above 0.
    Outcome<VolumetricState> At(double volumeRatio) const;

private:
    HyperelasticModel model_;
    std::vector<double> compressibilities_;
};

}  // namespace zelmat::mechanics
