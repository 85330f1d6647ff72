#include "ZELShared/ZELKqcAnalysisCaseFact.h"

#include "ZELShared/TIEZELIKqcAnalysisCaseFact.h"
#include "ZELShared/ZELAnalysisDocUtils.h"
#include "ZELShared/ZELSharedModule.h"
#include "framework/KORDictionary.h"

KORImplementClass(ZELKqcAnalysisCaseFact, KORClassKind::Component, "KORnull", kZELSharedModule)

// The component comes from its instance factory only.
KORBaseUnknown* ZELKqcAnalysisCaseFact::CreateItself() {
    return nullptr;
}

namespace {

const KORFillDictionary entry(ZELKqcAnalysisCaseFact::MetaObject(), ZELIKqcAnalysisCaseFact::MetaObject(),
                              KORCreateTie<TIEZELIKqcAnalysisCaseFact<ZELKqcAnalysisCaseFact>>, nullptr, 1);

constexpr const char* kPropertySet = "ZELZelmarPropertySetLT";

}  // namespace

HRESULT ZELKqcAnalysisCaseFact::CreatePropertySet(KORDocument* document) {
    KORISamAnalysisModelFactory_var factory;
    KORISamAnalysisModel_var model;
    if (FAILED(ZELAnalysisDocUtils::GetFactory(factory, document)) ||
        FAILED(ZELAnalysisDocUtils::GetAnalysisModel(model, document))) {
        return E_FAIL;
    }
    const KORISpecObject_var parent(model);
    const auto set =
        KORBaseUnknown_var::Adopt(factory->CreateEntity(kPropertySet, kPropertySet, parent.Get()));
    return set ? S_OK : E_FAIL;
}
