#pragma once

#include "interfaces/KORISpecObject.h"
#include "zelmat/Findings.h"
#include "zelmat/MaterialCard.h"

namespace zelmat {

/// Writes a card's tables into a material feature, through the material interface and its behaviors. What a
/// behavior answers, a warning or a failure, becomes a finding; the tables after it are written all the same.
void WriteMaterial(KORISpecObject* material, const MaterialCard& card, Findings& findings);

}  // namespace zelmat
