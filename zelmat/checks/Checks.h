#pragma once

#include "zelmat/findings/Findings.h"
#include "zelmat/layups/LayupCard.h"
#include "zelmat/materials/Material.h"

namespace zelmat {

/// Holds a material, with hardening curves and Ogden's coefficients in the meaning that documents have,
/// against every rule, its alternative fits included. The findings come in the order of their lines. Says
/// nothing about what only the module knows; that it answers when it is given the data.
Findings CheckMaterial(const Material& material);

Findings CheckLayup(const LayupCard& layup);

}  // namespace zelmat
