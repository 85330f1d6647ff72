#include "platform/analysis/KORAnalysisModelFactory.h"

#include "platform/analysis/KORChildren.h"
#include "platform/store/KORIFeatureContainer.h"

KORBaseUnknown* KORAnalysisModelFactory::CreateEntity(const KORUnicodeString& lateType,
                                                      const KORUnicodeString& name, KORISpecObject* model) {
    const KORCatalogType* type = catalogs_->Find(KORName::Find(lateType.View()));
    const auto parent = KORVar<KORFeature>::Of(model);
    if (!type || !parent || !KORChildren(*parent).CanBe()) return nullptr;
    const KORIFeatureContainer_var container(KORBaseUnknown_var::Adopt(parent->GetFeatContainer()));
    auto entity = container ? container->NewFeature(type->layout, name) : nullptr;
    if (entity) KORChildren(*parent).Append(entity.Get());
    return entity.Detach();
}
