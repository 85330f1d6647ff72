#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/mechanics/Outcome.h"
#include "zelmat/mechanics/plastic/StressStrain.h"

namespace zelmat::mechanics {

/// A point of a converted curve.
struct TrueCurvePoint {
    double strain;  ///< true
    double stress;  ///< true
    double plasticStrain;
};

/// A measured engineering curve made ready for a simulation; stresses in the unit in which they came.
struct TensileCurve {
    std::vector<TrueCurvePoint> trueCurve;  ///< every point up to necking
    /// Where necking begins by Considere's criterion, d sigma/d eps = sigma, which is the greatest
    /// engineering stress. Nothing when the curve still rises at its end.
    std::optional<StressStrain> necking;  ///< engineering
    std::size_t pointsAfterNecking;       ///< that were left out: strain is no longer uniform there
    std::optional<StressStrain>
        offsetYield;  ///< engineering; nothing when the curve does not reach the offset line
    /// From the offset yield point, at plastic strain 0, to necking; empty without an offset yield point.
    /// Points whose plastic strain does not rise are left out.
    std::vector<StressStrain> hardening;  ///< plastic strain, true stress
    std::vector<std::string> notes;
};

/// `engineering` in the order of the test, tension only; the offset is a strain: 0.002 for the 0.2 % yield
/// point. The plastic strains of `hardening` count from the offset yield point, whose own plastic strain
/// (about the offset) is taken off. Refused for fewer than two points, for strains that do not rise or are
/// not above -1, for numbers that are not finite, and for a Young's modulus or an offset not above 0.
Outcome<TensileCurve> ConvertTensileCurve(const std::vector<StressStrain>& engineering, double youngsModulus,
                                          double offset = 0.002);

}  // namespace zelmat::mechanics
