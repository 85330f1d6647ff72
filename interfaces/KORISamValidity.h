#pragma once

#include <cstdint>

#include "interfaces/KORISpecObject.h"

inline const KORIID IID_KORISamValidity = KORName::Intern("KORISamValidity");

/// Tells the analysis framework whether a feature is complete enough to be used.
class KORISamValidity : public KORInterface<IID_KORISamValidity> {
public:
    /// `status` is 0 when the object is valid, 1 when it is not; an object that is not valid is answered
    /// with a failure, too. `context` is not read.
    virtual HRESULT IsValid(const KORISpecObject_var& object, const void* context, std::uint32_t& status) = 0;

protected:
    ~KORISamValidity() = default;
};

using KORISamValidity_var = KORVar<KORISamValidity>;
