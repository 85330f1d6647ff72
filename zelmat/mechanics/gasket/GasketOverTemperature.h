#pragma once

#include <functional>
#include <vector>

#include "zelmat/mechanics/gasket/GasketThickness.h"

namespace zelmat::mechanics {

/// A gasket as it was measured at one temperature.
struct GasketAtTemperature {
    double temperature;
    GasketThickness thickness;
};

/// What is read from a gasket: its loading or its unloading at a closure.
using GasketReading = std::function<Outcome<GasketValue>(const GasketThickness&)>;

/// The reading at a temperature: pressure and stiffness linear between the temperatures, by the policy
/// outside of them. Notes of the readings and of the interpolation together. Refused as TemperatureTable
/// refuses, and where one of the readings is.
Outcome<GasketValue> ReadAt(const std::vector<GasketAtTemperature>& gaskets, double temperature,
                            OutsidePolicy policy, const GasketReading& reading);

}  // namespace zelmat::mechanics
