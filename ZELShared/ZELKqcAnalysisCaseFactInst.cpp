#include "ZELShared/ZELKqcAnalysisCaseFactInst.h"

#include <new>

#include "ZELShared/ZELKqcAnalysisCaseFact.h"
#include "ZELShared/ZELSharedModule.h"
#include "framework/KORDictionary.h"
#include "framework/TIEKORICreateInstance.h"

KORImplementClass(ZELKqcAnalysisCaseFactInst, KORClassKind::CodeExtension, "ZELKqcAnalysisCaseFact",
                  kZELSharedModule)

KORBaseUnknown* ZELKqcAnalysisCaseFactInst::CreateItself() {
    return new ZELKqcAnalysisCaseFactInst;
}

namespace {

const KORFillDictionary entry(ZELKqcAnalysisCaseFactInst::MetaObject(), KORICreateInstance::MetaObject(),
                              KORCreateTie<TIEKORICreateInstance<ZELKqcAnalysisCaseFactInst>>, nullptr, 1);

}  // namespace

HRESULT ZELKqcAnalysisCaseFactInst::CreateInstance(void** out) {
    KORBaseUnknown* factory = new (std::nothrow) ZELKqcAnalysisCaseFact;
    *out = factory;
    return factory ? S_OK : E_OUTOFMEMORY;
}
