#pragma once

#include <vector>

#include "interfaces/KORISpecObject.h"
#include "zelmat/findings/Findings.h"
#include "zelmat/materials/Material.h"

namespace zelmat {

/// Writes blocks into a material of a document, through the material interface and its behaviors; any
/// number of them, in any order. `feature` is a material of the platform or its analysis data. The blocks are
/// of `material`, or of its fits; from the material itself come the names for findings, and the heat
/// generation if it says something of it. A block in another meaning than the stored one (engineering stress,
/// total strain, the other convention of Ogden) is converted first, and told. What a behavior answers, a
/// warning or a failure, becomes a finding; the blocks after it are written all the same.
void WriteBlocks(KORISpecObject* feature, const Material& material, const std::vector<const Block*>& blocks,
                 Findings& findings);

}  // namespace zelmat
