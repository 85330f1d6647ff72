#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "zelmat/mechanics/hyperelastic/PrincipalStretches.h"

namespace zelmat::mechanics {

/// How a test loads its specimen; x is the stretch in the loaded direction, 1 at rest.
enum class LoadingMode : int {
    UNIAXIAL,      ///< x, x^-1/2, x^-1/2
    EQUIBIAXIAL,   ///< x, x, x^-2
    PLANAR,        ///< x, 1, 1/x; also called pure shear
    SIMPLE_SHEAR,  ///< x is the amount of shear, 0 at rest: x = l - 1/l of the principal stretches l, 1/l, 1
};

/// "uniaxial", "equibiaxial", "planar", "shear"
std::string_view Keyword(LoadingMode mode);
std::optional<LoadingMode> LoadingModeOf(std::string_view keyword);

/// A place on a mode's path. The logarithmic strains are `direction` times one number, so that one formula
/// serves all modes.
struct PathPoint {
    PrincipalStretches stretches;
    std::array<double, 3> direction;
};

/// 1, and for SIMPLE_SHEAR 0.
double AtRest(LoadingMode mode);

/// Whether x can be reached: a finite number, above 0 for a stretch.
bool IsReachable(LoadingMode mode, double x);

/// Only for what can be reached.
PathPoint PointOn(LoadingMode mode, double x);

/// The parameter of the path, 0 at rest: ln of the stretch, and of the greatest stretch for SIMPLE_SHEAR.
double PathStrain(LoadingMode mode, double x);

/// Its inverse: the stretch, or the amount of shear.
double LoadAt(LoadingMode mode, double pathStrain);

}  // namespace zelmat::mechanics
