#pragma once

#include <string>
#include <vector>

#include "interfaces/KORISpecObject.h"
#include "zelmat/findings/Findings.h"
#include "zelmat/materials/MaterialCard.h"

namespace zelmat {

/// What the store holds for a material: every behavior reads its data from there again, as the writer of an
/// analysis input would have it. One entry for each, switched on or not, in the order of CardBlocks().
/// `file` and `name` say in findings which material it is about.
std::vector<StoredBlock> ReadMaterial(KORISpecObject* material, const std::string& file,
                                      const std::string& name, Findings& findings);

}  // namespace zelmat
