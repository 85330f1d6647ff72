#pragma once

namespace zelmat::mechanics {

/// A point of a tensile test. Strains have no unit, stresses any one unit.
struct StressStrain {
    double strain;
    double stress;
};

/// True (logarithmic strain, force by deformed area) from engineering (elongation by first length, force by
/// first area), as long as the strain is uniform along the specimen and the volume is kept: ln(1 + e), s (1 +
/// e). For e > -1.
StressStrain TrueFromEngineering(const StressStrain& engineering);

/// Its inverse: exp(eps) - 1, sigma exp(-eps).
StressStrain EngineeringFromTrue(const StressStrain& trueValues);

/// The plastic part of a true strain: eps - sigma/E.
double PlasticStrain(const StressStrain& trueValues, double youngsModulus);

}  // namespace zelmat::mechanics
