#pragma once

#include <array>
#include <optional>
#include <vector>

#include "zelmat/mechanics/Outcome.h"
#include "zelmat/mechanics/elastic/OrthotropicPly.h"

namespace zelmat::mechanics {

/// Components x, y, xy (or 1, 2, 12); strains with the engineering shear strain.
using Vector3 = std::array<double, 3>;
using Matrix3 = std::array<Vector3, 3>;  ///< rows

/// Strengths of a ply, all above 0, in the unit of its moduli.
struct PlyStrength {
    double xt, xc;              ///< along the fibre, tension and compression
    double yt, yc;              ///< across it
    double s;                   ///< shear
    std::optional<double> f12;  ///< Tsai-Wu's interaction (1/stress^2); else -1/2 sqrt(F11 F22)
};

/// Free thermal expansion of a ply, mean coefficients over the change of temperature.
struct PlyExpansion {
    double alpha1, alpha2;  ///< along the fibre and across it, 1/K
};

/// What a ply is made of. Any consistent units: Pa, m, kg/m3, 1/K or MPa, mm, t/mm3, 1/K.
struct PlyMaterial {
    OrthotropicPly elastic;
    std::optional<PlyExpansion> expansion;  ///< nothing: not known, which is not 0
    std::optional<double> density;
    std::optional<PlyStrength> strength;
};

struct Layer {
    std::size_t material;  ///< index of its ply material, from 0
    double thickness;
    double angle;  ///< degrees from the laminate's x axis to the fibre, counter-clockwise seen from above
};

/// Layers from the bottom up: the first one lies at z = -h/2, z counts from the middle plane upwards.
struct Laminate {
    std::vector<PlyMaterial> materials;
    std::vector<Layer> layers;
};

/// Why a laminate is none, or nothing: it needs a layer, thicknesses above 0, finite angles, materials that
/// there are and are stable, densities above 0, strengths above 0 and a closed Tsai-Wu surface (F12^2 < F11
/// F22).
std::optional<Refusal> LaminateFault(const Laminate& laminate);

/// The interfaces from the bottom up, one more than layers; symmetric layups have exactly symmetric ones.
std::vector<double> Interfaces(const Laminate& laminate);

}  // namespace zelmat::mechanics
