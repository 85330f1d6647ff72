#include "platform/analysis/KORAnalysisExtensions.h"

#include "interfaces/TIEKORIApplicativeHolder.h"
#include "interfaces/TIEKORIMaterialFeature.h"
#include "interfaces/TIEKORIMaterialSupport.h"
#include "interfaces/TIEKORISamAnalysisEntity.h"
#include "interfaces/TIEKORISamAnalysisModel.h"
#include "interfaces/TIEKORISamAnalysisScan.h"
#include "interfaces/TIEKORISamAnalysisSet.h"
#include "platform/analysis/KORAnalysisEntityExtension.h"
#include "platform/analysis/KORAnalysisModelExtension.h"
#include "platform/analysis/KORAnalysisSetExtension.h"
#include "platform/analysis/KORMaterialExtension.h"

namespace {

template <class Interface, template <class> class Tie, class Class>
KORFillDictionary Entry() {
    return {Class::MetaObject(), Interface::MetaObject(), KORCreateTie<Tie<Class>>, nullptr, 1};
}

}  // namespace

std::span<const KORFillDictionary> KORAnalysisExtensions() {
    static const KORFillDictionary entries[] = {
        Entry<KORISamAnalysisModel, TIEKORISamAnalysisModel, KORAnalysisModelExtension>(),
        Entry<KORISamAnalysisScan, TIEKORISamAnalysisScan, KORAnalysisModelExtension>(),
        Entry<KORISamAnalysisSet, TIEKORISamAnalysisSet, KORAnalysisSetExtension>(),
        Entry<KORISamAnalysisEntity, TIEKORISamAnalysisEntity, KORAnalysisEntityExtension>(),
        Entry<KORIMaterialFeature, TIEKORIMaterialFeature, KORMaterialExtension>(),
        Entry<KORIMaterialSupport, TIEKORIMaterialSupport, KORMaterialExtension>(),
        Entry<KORIApplicativeHolder, TIEKORIApplicativeHolder, KORMaterialExtension>(),
    };
    return entries;
}
