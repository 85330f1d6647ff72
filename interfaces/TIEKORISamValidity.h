#pragma once

#include "framework/KORTie.h"
#include "interfaces/KORISamValidity.h"

/// Binding of KORISamValidity to an implementing class.
template <class Implementation>
class TIEKORISamValidity final : public KORTie<KORISamValidity, Implementation> {
public:
    using KORTie<KORISamValidity, Implementation>::KORTie;

    HRESULT IsValid(const KORISpecObject_var& object, const void* context, std::uint32_t& status) override {
        return this->Called(__func__)->IsValid(object, context, status);
    }
};
