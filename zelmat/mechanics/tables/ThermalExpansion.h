#pragma once

#include "zelmat/mechanics/tables/TemperatureTable.h"

namespace zelmat::mechanics {

/// What another reference temperature does to the mean coefficient.
enum class ReferenceChange : int {
    EXACT,       ///< the strain is referred to the length at the new reference temperature
    LINEARISED,  ///< both strains are referred to the same length
};

/// A coefficient of expansion at one temperature.
struct ExpansionValue {
    double value;                 ///< 1/K; on a row of the table the slope above it
    std::optional<double> below;  ///< on a row where the slope jumps: the slope below it
    std::vector<std::string> notes;
};

/// Free thermal strain by the mean (secant) coefficient from a reference temperature: eps(T) = alpha_m(T) (T
/// - Tref). alpha_m is linear between the rows of its table; where the table is of instantaneous
/// coefficients, these are, and eps is their integral. Coefficients in 1/K; temperatures all in kelvin or all
/// in degrees Celsius.
class ThermalExpansion {
public:
    /// `mean` has one value a row: the mean coefficient from the reference temperature.
    ThermalExpansion(TemperatureTable mean, double referenceTemperature)
        : mean_(std::move(mean)), reference_(referenceTemperature) {}

    double ReferenceTemperature() const { return reference_; }

    /// The mean coefficients at the rows; of an instantaneous table they are exact there, and only there.
    const TemperatureTable& Mean() const { return mean_; }

    /// alpha_m(T). Refused as the table refuses.
    Outcome<TableValue> MeanAt(double temperature, OutsidePolicy policy) const;

    /// eps(T), 0 at the reference temperature. Refused as the table refuses.
    Outcome<TableValue> StrainAt(double temperature, OutsidePolicy policy) const;

    /// d eps / dT = alpha_m + alpha_m' (T - Tref), or what an instantaneous table says.
    Outcome<ExpansionValue> InstantaneousAt(double temperature, OutsidePolicy policy) const;

    /// The mean coefficient from another reference temperature T1, at T:
    /// [eps(T) - eps(T1)] / ((1 + eps(T1)) (T - T1)); LINEARISED without the factor 1 + eps(T1). At T = T1
    /// its limit. The policy holds for both temperatures.
    Outcome<ExpansionValue> MeanFrom(double newReference, double temperature, ReferenceChange change,
                                     OutsidePolicy policy) const;

    /// This expansion with the mean coefficients of its own rows from another reference temperature. Between
    /// rows the new table is linear, which the exact curve is not.
    Outcome<ThermalExpansion> Referred(double newReference, ReferenceChange change,
                                       OutsidePolicy policy) const;

    /// From a table of the instantaneous coefficient, linear between its rows: the mean one is its integral
    /// from the reference temperature over the difference. Refused where the policy refuses the reference
    /// temperature.
    static Outcome<ThermalExpansion> FromInstantaneous(const TemperatureTable& instantaneous,
                                                       double referenceTemperature, OutsidePolicy policy);

private:
    TemperatureTable mean_;
    double reference_;
    std::optional<TemperatureTable> instantaneous_;  ///< what mean_ was made of; nothing: it was given
};

}  // namespace zelmat::mechanics
