#pragma once

#include "interfaces/KORISpecObject.h"

inline const KORIID IID_KORIMaterialSupport = KORName::Intern("KORIMaterialSupport");
inline const KORIID IID_KORIApplicativeHolder = KORName::Intern("KORIApplicativeHolder");

/// Where the data that applications keep about one object hang, each feature under a name.
class KORIApplicativeHolder : public KORInterface<IID_KORIApplicativeHolder> {
public:
    /// The applicative feature of that name with one reference for the caller; null when there is none.
    virtual KORBaseUnknown* FindApplicative(const KORUnicodeString& name) = 0;

protected:
    ~KORIApplicativeHolder() = default;
};

using KORIApplicativeHolder_var = KORVar<KORIApplicativeHolder>;

/// A material that applications can support with data of their own.
class KORIMaterialSupport : public KORInterface<IID_KORIMaterialSupport> {
public:
    /// The material's support object with one reference for the caller; null when it has none. The
    /// support object answers KORIApplicativeHolder.
    virtual KORBaseUnknown* GetSupport() = 0;

protected:
    ~KORIMaterialSupport() = default;
};

using KORIMaterialSupport_var = KORVar<KORIMaterialSupport>;
