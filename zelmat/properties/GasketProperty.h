#pragma once

#include <string>
#include <vector>

#include "zelmat/materials/Material.h"
#include "zelmat/mechanics/gasket/GasketOverTemperature.h"

namespace zelmat {

/// Which of a gasket's unloading tables counts; a block may hold both.
enum class GasketUnloading : int { NONE, ELASTIC_PLASTIC, DAMAGE };

/// "none", "elastic-plastic", "damage"
std::string_view Keyword(GasketUnloading unloading);

/// The unloading tables that a gasket block has; empty where unloading is switched off.
std::vector<GasketUnloading> UnloadingsOf(const Block& gasket);

/// The greatest closures, m, at which unloading curves leave the loading curve, rising; of the first
/// temperature.
std::vector<double> UnloadingEnds(const Block& gasket, GasketUnloading unloading);

/// The thickness behavior of a gasket as the formulas take it, one for each temperature of its loading
/// table, rising: pressures in Pa, closures in m, temperatures in K. `gasket`: the block. Refused as
/// GasketThickness::Over refuses, and where unloading has no curves at one of the temperatures.
mechanics::Outcome<std::vector<mechanics::GasketAtTemperature>> GasketOf(const Block& gasket,
                                                                         GasketUnloading unloading);

}  // namespace zelmat
