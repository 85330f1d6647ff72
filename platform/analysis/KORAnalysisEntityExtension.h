#pragma once

#include "framework/KORBaseUnknown.h"
#include "interfaces/KORISamAnalysisEntity.h"

/// Implements KORISamAnalysisEntity on "ZELLayupLT". It holds nothing: which sets hold the layup is written
/// in the sets.
class KORAnalysisEntityExtension final : public KORBaseUnknown {
    KORDeclareClass

    /// The property sets of the document's analysis model that list the entity, in document order.
    KORListValKORBaseUnknown_var GetParentSets();
};
