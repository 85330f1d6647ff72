#pragma once

#include "framework/KORTie.h"
#include "interfaces/KORISamAnalysisSet.h"

/// Binding of KORISamAnalysisSet to an implementing class.
template <class Implementation>
class TIEKORISamAnalysisSet final : public KORTie<KORISamAnalysisSet, Implementation> {
public:
    using KORTie<KORISamAnalysisSet, Implementation>::KORTie;

    void AddChild(const KORISpecObject_var& child) override {
        return this->Called(__func__)->AddChild(child);
    }
    KORListValKORISpecObject_var GetFeatures(const KORUnicodeString& lateType) override {
        return this->Called(__func__)->GetFeatures(lateType);
    }
};
