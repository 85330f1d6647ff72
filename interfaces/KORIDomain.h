#pragma once

#include "framework/KORVar.h"

inline const KORIID IID_KORIDomain = KORName::Intern("KORIDomain");

/// A domain of evaluation to which features can be confined.
class KORIDomain : public KORInterface<IID_KORIDomain> {
protected:
    ~KORIDomain() = default;
};

using KORIDomain_var = KORVar<KORIDomain>;
