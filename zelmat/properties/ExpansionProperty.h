#pragma once

#include "zelmat/materials/Material.h"
#include "zelmat/mechanics/tables/ThermalExpansion.h"

namespace zelmat {

/// Whether a block's free text `kind` says that its coefficients are instantaneous ones. A document holds
/// mean coefficients from the reference temperature.
bool IsInstantaneous(const Block& expansion);

/// The mean thermal expansion of a material, 1/K over K, as the formulas take it. `expansion`: the block;
/// instantaneous coefficients are integrated from the reference temperature, by the policy where that lies
/// outside the table. Refused without a reference temperature and as OverTemperature refuses.
mechanics::Outcome<mechanics::ThermalExpansion> ExpansionOf(const Block& expansion,
                                                            mechanics::OutsidePolicy policy);

}  // namespace zelmat
