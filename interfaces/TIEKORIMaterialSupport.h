#pragma once

#include "framework/KORTie.h"
#include "interfaces/KORIMaterialSupport.h"

/// Binding of KORIMaterialSupport to an implementing class.
template <class Implementation>
class TIEKORIMaterialSupport final : public KORTie<KORIMaterialSupport, Implementation> {
public:
    using KORTie<KORIMaterialSupport, Implementation>::KORTie;

    KORBaseUnknown* GetSupport() override { return this->Called(__func__)->GetSupport(); }
};
