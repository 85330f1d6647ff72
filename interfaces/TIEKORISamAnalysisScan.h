#pragma once

#include "framework/KORTie.h"
#include "interfaces/KORISamAnalysisModel.h"

/// Binding of KORISamAnalysisScan to an implementing class.
template <class Implementation>
class TIEKORISamAnalysisScan final : public KORTie<KORISamAnalysisScan, Implementation> {
public:
    using KORTie<KORISamAnalysisScan, Implementation>::KORTie;

    KORListValKORISpecObject_var Scan(const KORUnicodeString& lateType, int mode) override {
        return this->Called(__func__)->Scan(lateType, mode);
    }
};
