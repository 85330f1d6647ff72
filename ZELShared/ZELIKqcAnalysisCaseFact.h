#pragma once

#include "framework/KORVar.h"
#include "interfaces/KORDocument.h"

inline const KORIID IID_ZELIKqcAnalysisCaseFact = KORName::Intern("ZELIKqcAnalysisCaseFact");

/// Creates the parts of an analysis case; of the component "ZELKqcAnalysisCaseFact".
class ZELIKqcAnalysisCaseFact : public KORInterface<IID_ZELIKqcAnalysisCaseFact> {
public:
    /// Creates the analysis property set (late type "ZELZelmarPropertySetLT") of a document.
    [[nodiscard]] virtual HRESULT CreatePropertySet(KORDocument* document) = 0;

protected:
    ~ZELIKqcAnalysisCaseFact() = default;
};

using ZELIKqcAnalysisCaseFact_var = KORVar<ZELIKqcAnalysisCaseFact>;
