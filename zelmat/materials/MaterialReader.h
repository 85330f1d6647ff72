#pragma once

#include <string>

#include "interfaces/KORISpecObject.h"
#include "zelmat/findings/Findings.h"
#include "zelmat/materials/Material.h"

namespace zelmat {

/// What a document holds of a material: every behavior reads its data from there again, as the writer of an
/// analysis input would have it. `feature` is a material of the platform or its analysis data. The answer has
/// one block for each behavior, in the order of BlockKinds(); one that the material does not have is switched
/// off. A block that is switched on and cannot be read is a finding and as far as it was read. `file` and
/// `name` are the material's, for findings.
Material ReadMaterial(KORISpecObject* feature, const std::string& file, const std::string& name,
                      Findings& findings);

}  // namespace zelmat
