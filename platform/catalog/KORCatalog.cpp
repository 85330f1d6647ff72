#include "platform/catalog/KORCatalog.h"

HRESULT KORCatalog::RetrieveStartUp(const KORUnicodeString& lateType, const char* interfaceName, void** out) {
    *out = nullptr;
    const KORCatalogType* type = file_->Find(KORName::FindConstant(lateType.View()));
    const KORName* iid = KORName::Find(interfaceName);
    if (!type || !iid) return E_FAIL;
    return FAILED(type->startUp->QueryInterface(iid, out)) ? E_FAIL : S_OK;
}
