#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/store/ZELAttribute.h"

HRESULT ZELReadFlag(KORISpecObject* feature, ZELKeySlot& slot, unsigned char& field) {
    const HRESULT status = ZELUseAttribute(
        feature, slot,
        [&](KORISpecAttrAccess& access, KORISpecAttrKey* key) { field = access.GetBoolean(key, 0) ? 1 : 0; });
    if (status == E_FAIL) field = 0;
    return status;
}

HRESULT ZELReadDouble(KORISpecObject* feature, ZELKeySlot& slot, double& field) {
    const HRESULT status = ZELUseAttribute(
        feature, slot,
        [&](KORISpecAttrAccess& access, KORISpecAttrKey* key) { field = access.GetDouble(key, 0); });
    if (status == E_FAIL) field = 0.0;
    return status;
}

HRESULT ZELReadString(KORISpecObject* feature, ZELKeySlot& slot, KORUnicodeString& field) {
    return ZELUseAttribute(feature, slot, [&](KORISpecAttrAccess& access, KORISpecAttrKey* key) {
        field = access.GetString(key, 0);
    });
}

HRESULT ZELWriteFlag(KORISpecObject* feature, ZELKeySlot& slot, unsigned char field) {
    return ZELUseAttribute(feature, slot, [field](KORISpecAttrAccess& access, KORISpecAttrKey* key) {
        access.SetBoolean(key, field != 0, 0);
    });
}

HRESULT ZELWriteDouble(KORISpecObject* feature, ZELKeySlot& slot, double field) {
    return ZELUseAttribute(feature, slot, [field](KORISpecAttrAccess& access, KORISpecAttrKey* key) {
        access.SetDouble(key, field, 0);
    });
}

HRESULT ZELWriteString(KORISpecObject* feature, ZELKeySlot& slot, const KORUnicodeString& field) {
    return ZELUseAttribute(feature, slot, [&field](KORISpecAttrAccess& access, KORISpecAttrKey* key) {
        access.SetString(key, field, 0);
    });
}
