#pragma once

#include "ZELMaterialModel/include/ZELIMaterial.h"
#include "interfaces/KORISpecObject.h"

namespace zelmat {

/// The behaviors of a material of a document. `feature` is a material of the platform, on which the analysis
/// data hang, or the analysis data themselves. Null when it is neither, or has none.
ZELIMaterial_var AnalysisDataOf(KORISpecObject* feature);

}  // namespace zelmat
