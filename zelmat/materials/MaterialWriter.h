#pragma once

#include <vector>

#include "interfaces/KORISpecObject.h"
#include "zelmat/findings/Findings.h"
#include "zelmat/materials/MaterialCard.h"

namespace zelmat {

/// Writes data of a card into a material feature, through the material interface and its behaviors. What a
/// behavior answers, a warning or a failure, becomes a finding; the blocks after it are written all the same.
void WriteMaterial(KORISpecObject* material, const MaterialCard& card,
                   const std::vector<const CardData*>& data, Findings& findings);

}  // namespace zelmat
