#pragma once

#include <optional>
#include <vector>

namespace zelmat::mechanics {

/// How near computed stresses come to measured ones. Every point counts alike, whatever weight it had in a
/// fit.
struct FitDeviation {
    std::size_t points;
    std::optional<double>
        rmsRelative;     ///< of (computed - measured)/measured over the points of a stress that is not 0
    double rmsAbsolute;  ///< of computed - measured, in the unit of stress
    std::optional<double> rSquared;  ///< 1 - sum (computed - measured)^2 / sum (measured - mean)^2; nothing
                                     ///< where they do not differ
};

/// Of as many computed stresses as measured ones, at least one.
FitDeviation DeviationOf(const std::vector<double>& computed, const std::vector<double>& measured);

}  // namespace zelmat::mechanics
