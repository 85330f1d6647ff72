#include "platform/catalog/KORStartUp.h"

#include "interfaces/KORIContainer.h"
#include "platform/store/KORIFeatureContainer.h"

KORISpecObject* KORStartUp::Instantiate(const KORUnicodeString& name, KORIContainer* container) {
    const auto features = KORIFeatureContainer_var::Of(container);
    return features ? features->NewFeature(layout_, name).Detach() : nullptr;
}
