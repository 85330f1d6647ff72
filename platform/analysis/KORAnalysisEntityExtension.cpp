#include "platform/analysis/KORAnalysisEntityExtension.h"

#include "interfaces/KORDocument.h"
#include "interfaces/KORIAnalysisDocument.h"
#include "platform/analysis/KORModelWalk.h"
#include "platform/analysis/KORPlatformModule.h"
#include "platform/store/KORRoles.h"

KORImplementClass(KORAnalysisEntityExtension, KORClassKind::CodeExtension, kKOREntityRole, kKORPlatformModule)

KORBaseUnknown* KORAnalysisEntityExtension::CreateItself() {
    return new KORAnalysisEntityExtension;
}

KORListValKORBaseUnknown_var KORAnalysisEntityExtension::GetParentSets() {
    KORListValKORBaseUnknown_var parents;
    const auto own = KORVar<KORFeature>::Of(this);
    const auto document = KORIAnalysisDocument_var::Of(own->GetDocument());
    const auto model = KORISamAnalysisModel_var::Adopt(document ? document->GetAnalysisModel() : nullptr);
    const KORVar<KORFeature> root(model);
    if (!root) return parents;
    const KORISpecObject_var entity(own.Get());
    KORFeaturePlaces told;
    KORModelWalk().Visit(*root, [&](KORFeature& set, int) {
        const bool holds = KORISamAnalysisSet_var::Of(&set) && KORChildren(set).Contain(entity);
        if (holds && told.Add(&set, 0)) parents.Append(KORBaseUnknown_var(&set));
    });
    return parents;
}
