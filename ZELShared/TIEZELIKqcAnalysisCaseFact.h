#pragma once

#include "ZELShared/ZELIKqcAnalysisCaseFact.h"
#include "framework/KORTie.h"

/// Binding of ZELIKqcAnalysisCaseFact to an implementing class.
template <class Implementation>
class TIEZELIKqcAnalysisCaseFact final : public KORTie<ZELIKqcAnalysisCaseFact, Implementation> {
public:
    using KORTie<ZELIKqcAnalysisCaseFact, Implementation>::KORTie;

    HRESULT CreatePropertySet(KORDocument* document) override {
        return this->Called(__func__)->CreatePropertySet(document);
    }
};
