#pragma once

#include <optional>

#include "zelmat/commands/frame/Result.h"
#include "zelmat/commands/inputs/FitInput.h"
#include "zelmat/findings/Findings.h"
#include "zelmat/materials/Material.h"
#include "zelmat/mechanics/fit/HardeningFit.h"
#include "zelmat/mechanics/fit/HyperelasticFit.h"

namespace zelmat {

/// The hyperelastic block of a fitted potential, in the stored meaning: incompressible, at every temperature.
Block BlockOf(const mechanics::HyperelasticFit& fit);

/// The plastic block that a material has with a fitted hardening law, in the stored meaning.
///
/// Of JOHNSON_COOK it is the law itself: A, B and n of the fit, m and the temperatures of the material's own
/// law, else those that it keeps as values of these names. A and B of a curve above the transition
/// temperature are those at that temperature, by the law's own factor. The other laws become a table,
/// isotropic, up to the greatest plastic strain of the points; where the material's table depends on
/// temperature, the curve of the points' temperature is put into it.
///
/// What is assumed, replaced and lost becomes notes of the result. Nothing, and a finding that names what
/// lacks, when the material gives too little.
std::optional<Block> BlockOf(const mechanics::HardeningFit& fit, const HardeningCurve& curve,
                             const Material& material, Findings& findings, Result& result);

}  // namespace zelmat
