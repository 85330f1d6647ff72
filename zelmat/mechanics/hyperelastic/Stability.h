#pragma once

#include <optional>
#include <string_view>

#include "zelmat/mechanics/hyperelastic/LoadingMode.h"
#include "zelmat/mechanics/hyperelastic/StrainEnergy.h"

namespace zelmat::mechanics {

/// Two different things are called stability; a limit without its criterion says nothing.
enum class StabilityCriterion : int {
    /// Drucker: the 2x2 matrix of Kirchhoff stresses over logarithmic strains in the plane of the two free
    /// strains is
    /// positive definite, so that more strain takes more stress in every direction.
    DRUCKER,
    /// Under dead load (forces that keep size and direction) the equilibrium is unique: the 2x2 matrix of
    /// nominal
    /// stresses over stretches is positive definite. The third principal direction is free of stress: in
    /// SIMPLE_SHEAR
    /// that of the stretch 1, and the rotation of the principal axes is left out.
    DEAD_LOAD,
};

/// "drucker", "dead-load"
std::string_view Keyword(StabilityCriterion criterion);

/// The smallest eigenvalue of the criterion's matrix at stretch (amount of shear) x; positive: stable. Unit
/// of the coefficients. Nothing where the potential has no finite value.
std::optional<double> SmallestEigenvalue(const StrainEnergy& energy, StabilityCriterion criterion,
                                         LoadingMode mode, double x);

/// The stretches (amounts of shear) between which limits are looked for.
struct StabilityRange {
    double lower;
    double upper;
};

/// Stretches 0.1 to 10; for SIMPLE_SHEAR the amounts of shear -9.9 to 9.9, which have the same greatest
/// stretch.
StabilityRange DefaultStabilityRange(LoadingMode mode);

/// The first stretches on both sides of rest at which a criterion fails.
struct StabilityLimits {
    bool stableAtRest = true;           ///< false: no limits are looked for
    std::optional<double> compression;  ///< a stretch below 1 or a negative shear; nothing: none in the range
    std::optional<double> tension;
    StabilityRange searched{};  ///< the range, cut where the potential ends
};

/// Steps through the range, looks into every dip of the eigenvalue, and bisects to the last digits. A bound
/// that cannot be reached is taken from the default range; rest always belongs to the range.
StabilityLimits FindStabilityLimits(const StrainEnergy& energy, StabilityCriterion criterion,
                                    LoadingMode mode, const StabilityRange& range);

}  // namespace zelmat::mechanics
