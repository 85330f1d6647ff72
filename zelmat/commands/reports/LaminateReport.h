#pragma once

#include "zelmat/commands/frame/Result.h"
#include "zelmat/findings/Findings.h"
#include "zelmat/mechanics/laminate/LaminateResponse.h"

namespace zelmat {

/// What a laminate is: stiffness, its inverse, moduli, lamination parameters, expansion. Refused as
/// StiffnessOf.
std::optional<mechanics::Refusal> TellLaminate(const mechanics::Laminate& laminate, Result& result);

/// What it does under a load: strains and curvatures, what every ply bears, and where it first fails.
std::optional<mechanics::Refusal> TellLoaded(const mechanics::Laminate& laminate,
                                             const mechanics::LaminateLoad& load, Result& result);

}  // namespace zelmat
