#include "ZELMaterialModel/include/ZELHyperelastic.h"

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialConstants.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/store/ZELAttribute.h"

ZELHyperelastic::ZELHyperelastic(KORISpecObject* material) : material_(KORISpecObject_var::Of(material)) {
    const auto access = KORISpecAttrAccess_var::Of(material_.Get());
    if (!access) return;
    feature_ = ZELRememberedFeature(
        KORISpecObject_var::Adopt(access->GetSpecObject(ZELKey::ZELHyperelasticity.c_str(), 0)));
}

ZELHyperelastic::~ZELHyperelastic() {
    reserved_ = 0;
}

HRESULT ZELHyperelastic::GetHyperelasticEnabled(unsigned char& enabled) {
    return ZELFailOnly(ZELGetValue(material_.Get(), ZELKeyOnce(ZELKey::ZELHyperelasticFlag), enabled));
}

HRESULT ZELHyperelastic::SetHyperelasticEnabled(unsigned char enabled) {
    return ZELFailOnly(ZELSetValue(material_.Get(), ZELKeyOnce(ZELKey::ZELHyperelasticFlag), enabled));
}

HRESULT ZELHyperelastic::GetMaterialModelType(KORUnicodeString& type) {
    return ZELFailOnly(ZELGetValue(feature_.Get(), ZELKeyOnce(ZELKey::HyperelasticMatModelType), type));
}

HRESULT ZELHyperelastic::SetMaterialModelType(const KORUnicodeString& type) {
    return ZELFailOnly(
        ZELSetValue(feature_.ForWriting(), ZELKeyOnce(ZELKey::HyperelasticMatModelType), type));
}

HRESULT ZELHyperelastic::GetHyperelasticMaterialModel(KORISpecObject_var& model) {
    KORBaseUnknown_var stored;
    const HRESULT status = ZELGetValue(feature_.Get(), ZELKeyOnce(ZELKey::HyperelasticModel_v2), stored);
    if (FAILED(status)) return E_FAIL;
    model = stored;
    return S_OK;
}

HRESULT ZELHyperelastic::SetHyperelasticMaterialModel(const KORISpecObject_var& model) {
    return ZELFailOnly(ZELSetValue(feature_.ForWriting(), ZELKeyOnce(ZELKey::HyperelasticModel_v2),
                                   KORBaseUnknown_var(model)));
}
