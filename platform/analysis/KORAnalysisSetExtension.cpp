#include "platform/analysis/KORAnalysisSetExtension.h"

#include "interfaces/KORDocument.h"
#include "interfaces/KORIAnalysisDocument.h"
#include "interfaces/KORISamAnalysisModel.h"
#include "platform/analysis/KORChildren.h"
#include "platform/analysis/KORPlatformModule.h"
#include "platform/store/KORRoles.h"

KORImplementClass(KORAnalysisSetExtension, KORClassKind::CodeExtension, kKORSetRole, kKORPlatformModule)

KORBaseUnknown* KORAnalysisSetExtension::CreateItself() {
    return new KORAnalysisSetExtension;
}

void KORAnalysisSetExtension::AddChild(const KORISpecObject_var& child) {
    const auto own = KORVar<KORFeature>::Of(this);
    if (!child || KORChildren(*own).Contain(child)) return;
    const auto document = KORIAnalysisDocument_var::Of(own->GetDocument());
    const auto model = KORISamAnalysisModel_var::Adopt(document ? document->GetAnalysisModel() : nullptr);
    if (const KORVar<KORFeature> root(model); root) KORChildren(*root).Remove(child);
    KORChildren(*own).Append(child.Get());
}

KORListValKORISpecObject_var KORAnalysisSetExtension::GetFeatures(const KORUnicodeString& lateType) {
    return KORChildren(*KORVar<KORFeature>::Of(this)).OfType(lateType);
}
