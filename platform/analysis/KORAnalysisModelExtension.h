#pragma once

#include "framework/KORBaseUnknown.h"
#include "interfaces/KORISpecObject.h"

/// Implements KORISamAnalysisModel and KORISamAnalysisScan on the late types whose role is "model". It holds
/// nothing: the model's children lie in its attributes.
class KORAnalysisModelExtension final : public KORBaseUnknown {
    KORDeclareClass

    /// Document order is that of the children, each set followed by what it holds. A feature is found
    /// once, however often it is listed. Modes other than 1 to 3 find nothing.
    KORListValKORISpecObject_var Scan(const KORUnicodeString& lateType, int mode);
};
