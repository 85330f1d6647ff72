#include "zelmat/mechanics/gasket/GasketThickness.h"

#include <algorithm>
#include <cmath>

namespace zelmat::mechanics {

namespace {

GasketValue ValueOf(double closure, const PressureValue& value) {
    return {.pressure = value.pressure,
            .secantStiffness = closure > 0.0 ? std::optional(value.pressure / closure) : std::nullopt,
            .tangentStiffnessBelow = value.slopeBelow,
            .tangentStiffness = value.slopeAbove,
            .notes = {}};
}

/// A curve of one unloading read at a fraction of its way from no pressure to the loading curve; slopes by
/// the fraction.
PressureValue AtFraction(const PressureCurve& curve, double fraction) {
    const double start = curve.Front().closure, length = curve.Back().closure - start;
    // The end itself, not what rounding makes of it, so that its slopes are those of the last line.
    PressureValue value = curve.At(fraction == 1.0 ? curve.Back().closure : start + fraction * length);
    value.slopeBelow *= length;
    value.slopeAbove *= length;
    return value;
}

}  // namespace

Outcome<GasketThickness> GasketThickness::Over(std::vector<PressurePoint> loading,
                                               const std::vector<UnloadingPoint>& unloading) {
    auto loadingCurve = PressureCurve::Through(std::move(loading));
    if (!loadingCurve.Ok()) return Refusal{"loading: " + loadingCurve.Why()};
    if (loadingCurve->Front().closure != 0.0 || loadingCurve->Front().pressure != 0.0) {
        return Refusal{"loading has to start without closure and pressure"};
    }
    std::vector<PressureCurve> curves;
    for (std::size_t begin = 0, end = 0; begin < unloading.size(); begin = end) {
        std::vector<PressurePoint> points;
        for (; end < unloading.size() && unloading[end].parameter == unloading[begin].parameter; ++end) {
            points.push_back({.closure = unloading[end].closure, .pressure = unloading[end].pressure});
        }
        const std::string name = "unloading curve " + std::to_string(curves.size() + 1);
        auto curve = PressureCurve::Through(std::move(points));
        if (!curve.Ok()) return Refusal{name + ": " + curve.Why()};
        if (!curves.empty() && curve->Back().closure <= curves.back().Back().closure) {
            return Refusal{name + " does not end at a greater closure than the one before"};
        }
        curves.push_back(*curve);
    }
    return GasketThickness(*loadingCurve, std::move(curves));
}

Outcome<GasketValue> GasketThickness::Loading(double closure, OutsidePolicy policy) const {
    if (!std::isfinite(closure) || closure < 0.0)
        return Refusal{"a closure has to be a finite number from 0 on"};
    if (closure <= loading_.Back().closure) return ValueOf(closure, loading_.At(closure));
    switch (policy) {
        case OutsidePolicy::REFUSE:
            return Refusal{"the closure lies beyond the loading curve"};
        case OutsidePolicy::CONSTANT: {
            auto value = ValueOf(closure, {loading_.Back().pressure, 0.0, 0.0});
            value.notes = {"beyond the loading curve: pressure of its last point"};
            return value;
        }
        case OutsidePolicy::LINEAR: {
            auto value = ValueOf(closure, loading_.At(closure));
            value.notes = {"beyond the loading curve: extended along its last line"};
            return value;
        }
    }
    return Refusal{"unknown policy"};
}

Outcome<GasketThickness::Between> GasketThickness::CurvesAt(double greatestClosure) const {
    if (!std::isfinite(greatestClosure) || greatestClosure < 0.0) {
        return Refusal{"a closure has to be a finite number from 0 on"};
    }
    if (unloading_.empty()) return Refusal{"the gasket has no unloading curves"};
    if (greatestClosure > unloading_.back().Back().closure) {
        return Refusal{"the greatest closure lies beyond the last unloading curve"};
    }
    const auto upper =
        std::lower_bound(unloading_.begin(), unloading_.end(), greatestClosure,
                         [](const PressureCurve& curve, double c) { return curve.Back().closure < c; });
    if (upper->Back().closure == greatestClosure)
        return Between{&*upper, &*upper, 0.0, upper->Front().closure};
    if (upper == unloading_.begin()) return Between{nullptr, &*upper, 0.0, 0.0};
    const auto lower = upper - 1;
    const double part =
        (greatestClosure - lower->Back().closure) / (upper->Back().closure - lower->Back().closure);
    return Between{&*lower, &*upper, part, std::lerp(lower->Front().closure, upper->Front().closure, part)};
}

Outcome<GasketValue> GasketThickness::Unloading(double closure, double greatestClosure) const {
    const auto between = CurvesAt(greatestClosure);
    if (!between.Ok()) return between.Refused();
    if (!std::isfinite(closure) || closure < 0.0)
        return Refusal{"a closure has to be a finite number from 0 on"};
    if (closure > greatestClosure) return Refusal{"the closure lies above the greatest one that was reached"};
    if (!between->lower) {
        auto value = ValueOf(closure, loading_.At(closure));
        value.notes = {"below the first unloading curve: back along the loading curve"};
        return value;
    }
    if (closure < between->start) {
        auto value = ValueOf(closure, {0.0, 0.0, 0.0});
        value.notes = {"below the closure that stays: no pressure"};
        return value;
    }
    const double length = greatestClosure - between->start;
    const double fraction = closure == greatestClosure ? 1.0 : (closure - between->start) / length;
    const PressureValue low = AtFraction(*between->lower, fraction),
                        high = AtFraction(*between->upper, fraction);
    auto value = ValueOf(closure, {std::lerp(low.pressure, high.pressure, between->part),
                                   std::lerp(low.slopeBelow, high.slopeBelow, between->part) / length,
                                   std::lerp(low.slopeAbove, high.slopeAbove, between->part) / length});
    if (between->part > 0.0)
        value.notes = {"interpolated between two unloading curves at equal fraction of closure"};
    return value;
}

Outcome<GasketCycle> GasketThickness::EnergyLoss(double greatestClosure) const {
    const auto between = CurvesAt(greatestClosure);
    if (!between.Ok()) return between.Refused();
    if (!between->lower) {
        return GasketCycle{0.0, {"below the first unloading curve: back along the loading curve"}};
    }
    // Pressure is interpolated at equal fraction, so the mean pressures are, too.
    const auto meanPressure = [](const PressureCurve& curve) {
        const double from = curve.Front().closure, to = curve.Back().closure;
        return curve.Energy(from, to) / (to - from);
    };
    const double mean =
        std::lerp(meanPressure(*between->lower), meanPressure(*between->upper), between->part);
    GasketCycle cycle{loading_.Energy(0.0, greatestClosure) - mean * (greatestClosure - between->start), {}};
    if (cycle.energyLoss < 0.0) {
        cycle.notes.push_back("unloading lies above loading: the cycle would give energy");
    }
    return cycle;
}

}  // namespace zelmat::mechanics
