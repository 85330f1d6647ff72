#pragma once

#include "framework/KORBaseUnknown.h"
#include "interfaces/KORISpecObject.h"

/// Implements KORISamAnalysisSet on the late types whose role is "set". It holds nothing: the set's children
/// lie in its attributes.
class KORAnalysisSetExtension final : public KORBaseUnknown {
    KORDeclareClass

    /// The child moves here from the analysis model, if it stood there; other sets that hold it keep it.
    /// Nothing happens for null, and when the set holds it already.
    void AddChild(const KORISpecObject_var& child);
    KORListValKORISpecObject_var GetFeatures(const KORUnicodeString& lateType);
};
