#pragma once

#include "framework/KORBaseUnknown.h"
#include "interfaces/KORDocument.h"

/// The analysis-case factory: a component of its own, made only through its instance factory. It holds
/// nothing.
class ZELKqcAnalysisCaseFact final : public KORBaseUnknown {
    KORDeclareClass

    /// A new property set under the document's analysis model, whether or not there is one already.
    /// E_FAIL when the document has no analysis model, or no late type for the set.
    [[nodiscard]] HRESULT CreatePropertySet(KORDocument* document);
};
