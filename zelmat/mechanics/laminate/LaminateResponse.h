#pragma once

#include "zelmat/mechanics/laminate/LaminateStiffness.h"

namespace zelmat::mechanics {

/// Loads per length of edge and a uniform change of temperature from the one without stress.
struct LaminateLoad {
    Vector3 force{};   ///< Nx, Ny, Nxy: N/m for moduli in Pa and lengths in m
    Vector3 moment{};  ///< Mx, My, Mxy: N
    double temperatureChange = 0.0;
};

/// Strains and stresses at one height of a ply.
struct PlyPoint {
    double z;
    Vector3 strain;     ///< total, in the laminate's axes
    Vector3 stress;     ///< in the laminate's axes
    Vector3 plyStrain;  ///< total, in the ply's axes 1, 2, 12
    Vector3 plyStress;  ///< in the ply's axes
};

struct PlyResponse {
    std::size_t layer;  ///< from 0, the bottom one first
    PlyPoint bottom, top;
};

/// The middle plane's strains and curvatures (1/length) under a load, and what every ply bears.
struct LaminateResponse {
    Vector3 strain, curvature;
    std::vector<PlyResponse> plies;  ///< from the bottom up
};

/// Strains and stresses: the strain at a height z is strain + z curvature; the third component of each is the
/// engineering shear strain, the twist 2 kxy. Refused where LaminateFault finds one, for loads and answers
/// that are not finite, and for a change of temperature where the expansion of a layer's material is not
/// known.
Outcome<LaminateResponse> RespondTo(const Laminate& laminate, const LaminateLoad& load);

/// Free expansion of the whole laminate per kelvin.
struct LaminateExpansion {
    Vector3 strain;     ///< 1/K
    Vector3 curvature;  ///< 1/(length K)
};

Outcome<LaminateExpansion> ExpansionOf(const Laminate& laminate);

}  // namespace zelmat::mechanics
