#pragma once

#include <array>

namespace zelmat::mechanics {

/// A deformation without change of volume by its principal stretches: l1 l2 l3 = 1. All numbers are without
/// unit.
struct PrincipalStretches {
    std::array<double, 3> stretch;
    std::array<double, 3> strain;  ///< logarithmic: ln of each stretch; their sum is 0
    double first;                  ///< I1 - 3, I1 the sum of the squares of the stretches
    double second;                 ///< I2 - 3, I2 the sum of their inverse squares
};

/// From two of the logarithmic strains; the third follows. The invariants keep their digits at small strains,
/// where I1 and 3 are nearly equal.
PrincipalStretches StretchesOf(double firstStrain, double secondStrain);

}  // namespace zelmat::mechanics
