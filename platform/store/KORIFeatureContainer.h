#pragma once

#include "platform/store/KORFeature.h"

inline const KORIID IID_KORIFeatureContainer = KORName::Intern("KORIFeatureContainer");

/// Offered by containers that take features of this store.
class KORIFeatureContainer : public KORInterface<IID_KORIFeatureContainer> {
public:
    /// A new feature in the container, with its type's initial values; null once its document is closed.
    virtual KORVar<KORFeature> NewFeature(const KORLayoutHandle& layout, const KORUnicodeString& name) = 0;

protected:
    ~KORIFeatureContainer() = default;
};

using KORIFeatureContainer_var = KORVar<KORIFeatureContainer>;
