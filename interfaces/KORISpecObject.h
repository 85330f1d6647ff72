#pragma once

#include "framework/KORBaseUnknown.h"
#include "framework/KORListVal.h"
#include "framework/KORUnicodeString.h"

class KORIContainer;
class KORIDomain;

inline const KORIID IID_KORISpecObject = KORName::Intern("KORISpecObject");

/// A feature (or the start-up from which features are instantiated): an object of a late type that lies in a
/// container of a document. Its values are reached through KORISpecAttrAccess.
class KORISpecObject : public KORInterface<IID_KORISpecObject> {
public:
    virtual KORUnicodeString GetType() = 0;  ///< the late type, such as "ZELElasticLT"
    virtual KORUnicodeString GetName() = 0;  ///< the instance name it was given when it was instantiated

    /// The container the feature lies in, with one reference for the caller; null for a start-up and for a
    /// feature that was removed.
    virtual KORBaseUnknown* GetFeatContainer() = 0;

    /// The feature on which this one hangs (a material's analysis data on the platform's material), with one
    /// reference for the caller; null when it hangs on none.
    virtual KORISpecObject* GetFather() { return nullptr; }

    /// Confines the feature to a domain of evaluation; null frees it.
    virtual void SetDomain(KORIDomain* domain) { static_cast<void>(domain); }

    /// On a start-up: a new feature of its late type with its default values, in a container. One reference
    /// for the caller; null when this is no start-up or the container takes no features.
    [[nodiscard]] virtual KORISpecObject* Instantiate(const KORUnicodeString& name,
                                                      KORIContainer* container) = 0;

protected:
    ~KORISpecObject() = default;
};

using KORISpecObject_var = KORVar<KORISpecObject>;
using KORListValKORISpecObject_var = KORListVal<KORISpecObject_var>;
