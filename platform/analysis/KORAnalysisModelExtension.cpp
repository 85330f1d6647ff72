#include "platform/analysis/KORAnalysisModelExtension.h"

#include "platform/analysis/KORModelWalk.h"
#include "platform/analysis/KORPlatformModule.h"
#include "platform/store/KORRoles.h"

KORImplementClass(KORAnalysisModelExtension, KORClassKind::CodeExtension, kKORModelRole, kKORPlatformModule)

KORBaseUnknown* KORAnalysisModelExtension::CreateItself() {
    return new KORAnalysisModelExtension;
}

namespace {

constexpr int kOwnChildren = 1;
constexpr int kChildrenOfSets = 2;
constexpr int kEverything = 3;

}  // namespace

KORListValKORISpecObject_var KORAnalysisModelExtension::Scan(const KORUnicodeString& lateType, int mode) {
    KORListValKORISpecObject_var features;
    if (mode < kOwnChildren || mode > kEverything) return features;
    const int first = mode == kChildrenOfSets ? 2 : 1;
    KORFeaturePlaces found;
    KORModelWalk walk(mode == kEverything ? KORModelWalk::kEverything : mode);
    walk.Visit(*KORVar<KORFeature>::Of(this), [&](KORFeature& feature, int depth) {
        if (depth < first || feature.GetType() != lateType || !found.Add(&feature, 0)) return;
        features.Append(KORISpecObject_var(&feature));
    });
    return features;
}
