#pragma once

#include "zelmat/mechanics/laminate/Laminate.h"

namespace zelmat::mechanics {

/// Classical lamination theory: forces N and moments M per length over strains of the middle plane and
/// curvatures, N = A eps + B kappa, M = B eps + D kappa. z upwards from the middle plane, first layer at the
/// bottom. For moduli in Pa and thicknesses in m: A in N/m, B in N, D in N m.
struct LaminateStiffness {
    double thickness;
    Matrix3 a;  ///< sum Qbar (z_k - z_{k-1})
    Matrix3 b;  ///< 1/2 sum Qbar (z_k^2 - z_{k-1}^2)
    Matrix3 d;  ///< 1/3 sum Qbar (z_k^3 - z_{k-1}^3)
    /// The inverse of the whole: eps = aInverse N + bInverse M, kappa = bInverse' N + dInverse M.
    Matrix3 aInverse, bInverse, dInverse;
    std::optional<double> massPerArea;  ///< nothing unless every layer's material has a density
};

/// An entry that is less than the rounding of what was added up is 0. Refused where LaminateFault finds one.
Outcome<LaminateStiffness> StiffnessOf(const Laminate& laminate);

/// The constants of a homogeneous plate that is as stiff: of the membrane 1/(h a11), ..., of bending 12/(h^3
/// d11), ..., from the inverse of the whole, so that an unsymmetric laminate is free to curve.
struct PlateModuli {
    double ex, ey, gxy;
    double nuxy;  ///< contraction in y under load in x
};

struct LaminateModuli {
    PlateModuli membrane, bending;
    bool coupled;  ///< B is not 0: stretching curves the laminate
};

LaminateModuli ModuliOf(const LaminateStiffness& stiffness);

}  // namespace zelmat::mechanics
