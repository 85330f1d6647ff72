#include "zelmat/mechanics/gasket/PressureCurve.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace zelmat::mechanics {

Outcome<PressureCurve> PressureCurve::Through(std::vector<PressurePoint> points) {
    if (points.size() < 2) return Refusal{"a curve of pressure over closure needs two points"};
    for (std::size_t i = 0; i < points.size(); ++i) {
        const std::string name = "point " + std::to_string(i + 1);
        if (!std::isfinite(points[i].closure) || !std::isfinite(points[i].pressure)) {
            return Refusal{name + " holds a number that is not finite"};
        }
        if (i > 0 && points[i].closure <= points[i - 1].closure)
            return Refusal{name + ": the closure does not rise"};
    }
    return PressureCurve(std::move(points));
}

double PressureCurve::Slope(std::size_t upperPoint) const {
    const PressurePoint &lower = points_[upperPoint - 1], &upper = points_[upperPoint];
    return (upper.pressure - lower.pressure) / (upper.closure - lower.closure);
}

PressureValue PressureCurve::At(double closure) const {
    const std::size_t last = points_.size() - 1;
    const auto found =
        std::lower_bound(points_.begin(), points_.end(), closure,
                         [](const PressurePoint& point, double c) { return point.closure < c; });
    const auto index = static_cast<std::size_t>(found - points_.begin());
    const std::size_t below = std::clamp<std::size_t>(index, 1, last);
    const bool onPoint = index <= last && points_[index].closure == closure;
    const std::size_t above = onPoint ? std::clamp<std::size_t>(index + 1, 1, last) : below;
    const PressurePoint& start = points_[below - 1];
    const double pressure =
        onPoint ? points_[index].pressure : start.pressure + Slope(below) * (closure - start.closure);
    return {.pressure = pressure, .slopeBelow = Slope(below), .slopeAbove = Slope(above)};
}

double PressureCurve::Energy(double from, double to) const {
    double energy = 0.0, last = from;
    const auto add = [&](double next) {
        energy += 0.5 * (At(last).pressure + At(next).pressure) * (next - last);
        last = next;
    };
    for (const PressurePoint& point : points_) {
        if (point.closure > from && point.closure < to) add(point.closure);
    }
    add(to);
    return energy;
}

}  // namespace zelmat::mechanics
