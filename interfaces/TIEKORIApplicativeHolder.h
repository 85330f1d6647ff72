#pragma once

#include "framework/KORTie.h"
#include "interfaces/KORIMaterialSupport.h"

/// Binding of KORIApplicativeHolder to an implementing class.
template <class Implementation>
class TIEKORIApplicativeHolder final : public KORTie<KORIApplicativeHolder, Implementation> {
public:
    using KORTie<KORIApplicativeHolder, Implementation>::KORTie;

    KORBaseUnknown* FindApplicative(const KORUnicodeString& name) override {
        return this->Called(__func__)->FindApplicative(name);
    }
};
