#include "platform/analysis/KORAnalysisEntityExtension.h"

#include "framework/KORDictionary.h"
#include "interfaces/KORDocument.h"
#include "interfaces/KORIAnalysisDocument.h"
#include "interfaces/TIEKORISamAnalysisEntity.h"
#include "platform/analysis/KORChildren.h"
#include "platform/analysis/KORPlatformModule.h"

KORImplementClass(KORAnalysisEntityExtension, KORClassKind::CodeExtension, "ZELLayupLT", kKORPlatformModule)

KORBaseUnknown* KORAnalysisEntityExtension::CreateItself() {
    return new KORAnalysisEntityExtension;
}

namespace {

const KORFillDictionary entity(KORAnalysisEntityExtension::MetaObject(), KORISamAnalysisEntity::MetaObject(),
                               KORCreateTie<TIEKORISamAnalysisEntity<KORAnalysisEntityExtension>>, nullptr,
                               1);

constexpr int kEverything = 3;

}  // namespace

KORListValKORBaseUnknown_var KORAnalysisEntityExtension::GetParentSets() {
    KORListValKORBaseUnknown_var parents;
    const auto own = KORVar<KORFeature>::Of(this);
    const auto document = KORIAnalysisDocument_var::Of(own->GetDocument());
    const auto model = KORISamAnalysisModel_var::Adopt(document ? document->GetAnalysisModel() : nullptr);
    const KORISamAnalysisScan_var scan(model);
    if (!scan) return parents;
    const KORListValKORISpecObject_var sets = scan->Scan("ZELZelmarPropertySetLT", kEverything);
    for (int position = 1; position <= sets.Size(); ++position) {
        const KORVar<KORFeature> set(sets[position]);
        if (KORChildren(*set).Contain(KORISpecObject_var(own.Get()))) parents.Append(set);
    }
    return parents;
}
