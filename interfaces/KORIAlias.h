#pragma once

#include "framework/KORUnicodeString.h"
#include "framework/KORVar.h"

inline const KORIID IID_KORIAlias = KORName::Intern("KORIAlias");

/// The visible name of a feature. It is not the instance name, and nothing keeps two features from sharing
/// one.
class KORIAlias : public KORInterface<IID_KORIAlias> {
public:
    virtual void SetAlias(const KORUnicodeString& alias) = 0;
    virtual KORUnicodeString GetAlias() = 0;  ///< empty when none was set

protected:
    ~KORIAlias() = default;
};

using KORIAlias_var = KORVar<KORIAlias>;
