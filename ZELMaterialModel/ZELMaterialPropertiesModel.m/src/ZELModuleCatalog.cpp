#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELModuleCatalog.h"

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialConstants.h"

HRESULT ZELOpenModuleCatalog(KORIContainer* container, KORICatalog_var& catalog) {
    const HRESULT status = AccessCatalog(ZELCatalog::FileName, ZELCatalog::Client, container, catalog);
    return SUCCEEDED(status) && !catalog ? E_FAIL : status;
}

KORISpecObject_var ZELRetrieveStartUp(KORICatalog& catalog, const KORUnicodeString& lateType) {
    void* found = nullptr;
    if (FAILED(catalog.RetrieveStartUp(lateType, "KORISpecObject", &found))) return nullptr;
    return KORISpecObject_var::Adopt(static_cast<KORISpecObject*>(found));
}

namespace {

HRESULT Make(const KORISpecObject_var& startUp, const KORUnicodeString& name, KORIContainer* container,
             KORISpecObject_var& created) {
    if (!startUp) return E_FAIL;
    created = KORISpecObject_var::Adopt(startUp->Instantiate(name, container));
    return created ? S_OK : E_FAIL;
}

}  // namespace

HRESULT ZELInstantiate(KORICatalog& catalog, const KORUnicodeString& lateType, const KORUnicodeString& name,
                       KORIContainer* container, KORISpecObject_var& created) {
    return Make(ZELRetrieveStartUp(catalog, lateType), name, container, created);
}

HRESULT ZELInstantiateAlone(const KORUnicodeString& lateType, const KORUnicodeString& name,
                            KORIContainer* container, KORISpecObject_var& created) {
    KORICatalog_var catalog;
    if (FAILED(ZELOpenModuleCatalog(container, catalog))) return E_FAIL;
    const KORISpecObject_var startUp = ZELRetrieveStartUp(*catalog, lateType);
    catalog = nullptr;
    return Make(startUp, name, container, created);
}
