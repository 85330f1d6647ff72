#pragma once

#include "framework/KORICreateInstance.h"
#include "framework/KORTie.h"

/// Binding of KORICreateInstance to an implementing class.
template <class Implementation>
class TIEKORICreateInstance final : public KORTie<KORICreateInstance, Implementation> {
public:
    using KORTie<KORICreateInstance, Implementation>::KORTie;

    HRESULT CreateInstance(void** out) override { return this->Called(__func__)->CreateInstance(out); }
};
