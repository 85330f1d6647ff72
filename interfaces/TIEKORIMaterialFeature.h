#pragma once

#include "framework/KORTie.h"
#include "interfaces/KORIMaterialFeature.h"

/// Binding of KORIMaterialFeature to an implementing class.
template <class Implementation>
class TIEKORIMaterialFeature final : public KORTie<KORIMaterialFeature, Implementation> {
public:
    using KORTie<KORIMaterialFeature, Implementation>::KORTie;

    KORISpecObject* GetApplicativeFeature(const KORUnicodeString& name) override {
        return this->Called(__func__)->GetApplicativeFeature(name);
    }
    HRESULT SetApplicativeFeature(const KORUnicodeString& name, KORISpecObject* feature) override {
        return this->Called(__func__)->SetApplicativeFeature(name, feature);
    }
    HRESULT RemoveApplicativeFeature(const KORUnicodeString& name) override {
        return this->Called(__func__)->RemoveApplicativeFeature(name);
    }
};
