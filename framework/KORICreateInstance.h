#pragma once

#include "framework/KORVar.h"

inline const KORIID IID_KORICreateInstance = KORName::Intern("KORICreateInstance");

/// Instance factory of a component, implemented by a code extension of the component's name.
class KORICreateInstance : public KORInterface<IID_KORICreateInstance> {
public:
    /// Stores a new instance in *out: a KORBaseUnknown* with one reference for the caller. E_OUTOFMEMORY,
    /// and null in *out, when it cannot be allocated.
    [[nodiscard]] virtual HRESULT CreateInstance(void** out) = 0;

protected:
    ~KORICreateInstance() = default;
};

using KORICreateInstance_var = KORVar<KORICreateInstance>;
