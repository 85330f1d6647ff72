#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/mechanics/Outcome.h"
#include "zelmat/mechanics/gasket/PressureCurve.h"
#include "zelmat/mechanics/tables/TemperatureTable.h"

namespace zelmat::mechanics {

/// A row of an unloading table.
struct UnloadingPoint {
    double pressure, closure;
    /// What tells one curve from the next: the plastic closure, at which it starts without pressure
    /// (elastic-plastic), or the greatest closure that was reached, at which it leaves the loading curve
    /// (damage; it starts at closure 0).
    double parameter;
};

/// The pressure of a gasket at a closure.
struct GasketValue {
    double pressure;
    std::optional<double> secantStiffness;           ///< pressure over closure; nothing at closure 0
    double tangentStiffnessBelow, tangentStiffness;  ///< of the branch, below and above the closure
    std::vector<std::string> notes;
};

/// A cycle of loading and unloading.
struct GasketCycle {
    double energyLoss;  ///< per area: J/m2 for Pa and m
    std::vector<std::string> notes;
};

/// Pressure over closure of a gasket at one temperature: a loading curve from the origin and unloading curves
/// that lead up to it. Closures in one unit of length, pressures in one unit of stress. Immutable.
class GasketThickness {
public:
    /// `loading` in the order of closure, starting at (0, 0); `unloading` grouped by rising parameter, by
    /// rising closure within; it may be empty. Refuses loading that does not start at the origin, unloading
    /// curves of one point or that do not rise, and curves whose ends do not rise from one to the next.
    static Outcome<GasketThickness> Over(std::vector<PressurePoint> loading,
                                         const std::vector<UnloadingPoint>& unloading);

    /// Linear between the points. Beyond the last point by the policy, which the answer names. Refused for a
    /// closure below 0.
    Outcome<GasketValue> Loading(double closure, OutsidePolicy policy) const;

    /// On the way back from the greatest closure that was reached. Between two unloading curves, told apart
    /// by the closures at which they leave the loading curve, linear at equal fraction of closure (from where
    /// a curve is without pressure to where it leaves the loading curve). Below the first curve the gasket
    /// goes back along the loading curve, said. Below where the pressure ends: 0, said. Refused without
    /// unloading curves, beyond the last one, and for a closure above the greatest one.
    Outcome<GasketValue> Unloading(double closure, double greatestClosure) const;

    /// What a cycle to the greatest closure and back leaves in the gasket. Refused as Unloading refuses.
    Outcome<GasketCycle> EnergyLoss(double greatestClosure) const;

private:
    /// Two unloading curves and how far between them one lies.
    struct Between {
        const PressureCurve* lower;  ///< null: along the loading curve
        const PressureCurve* upper;
        double part;
        double start;  ///< the closure without pressure
    };

    GasketThickness(PressureCurve loading, std::vector<PressureCurve> unloading)
        : loading_(std::move(loading)), unloading_(std::move(unloading)) {}

    Outcome<Between> CurvesAt(double greatestClosure) const;

    PressureCurve loading_;
    std::vector<PressureCurve> unloading_;  ///< by the closures of their ends
};

}  // namespace zelmat::mechanics
