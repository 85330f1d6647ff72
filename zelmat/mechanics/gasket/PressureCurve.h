#pragma once

#include <vector>

#include "zelmat/mechanics/Outcome.h"

namespace zelmat::mechanics {

struct PressurePoint {
    double closure;   ///< by how much the gasket is thinner
    double pressure;  ///< any one unit of stress
};

/// A pressure with its slopes over closure on both sides, which differ at a point of the curve.
struct PressureValue {
    double pressure;
    double slopeBelow, slopeAbove;
};

/// Pressure over closure, linear between its points. Immutable.
class PressureCurve {
public:
    /// Refused for fewer than two points, closures that do not rise, and numbers that are not finite.
    static Outcome<PressureCurve> Through(std::vector<PressurePoint> points);

    const PressurePoint& Front() const { return points_.front(); }
    const PressurePoint& Back() const { return points_.back(); }

    /// Outside its ends along the first or the last line.
    PressureValue At(double closure) const;

    /// The area below the curve between two closures, from <= to: energy per area.
    double Energy(double from, double to) const;

private:
    explicit PressureCurve(std::vector<PressurePoint> points) : points_(std::move(points)) {}

    double Slope(std::size_t upperPoint) const;

    std::vector<PressurePoint> points_;
};

}  // namespace zelmat::mechanics
