#pragma once

#include "framework/KORBaseUnknown.h"
#include "interfaces/KORISamAnalysisEntity.h"

/// Implements KORISamAnalysisEntity on the late types whose role is "entity". It holds nothing: which sets
/// hold the entity is written in the sets.
class KORAnalysisEntityExtension final : public KORBaseUnknown {
    KORDeclareClass

    /// The sets of the document's analysis model that list the entity, in document order.
    KORListValKORBaseUnknown_var GetParentSets();
};
