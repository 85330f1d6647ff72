#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELEJohnsonCookData.h"

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialConstants.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELModule.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/store/ZELAttribute.h"
#include "ZELMaterialModel/include/TIEZELIJohnsonCookData.h"
#include "framework/KORDictionary.h"

KORImplementClass(ZELEJohnsonCookData, KORClassKind::CodeExtension,
                  ZELLateType::ZELPlasticJohnsonCookLT.c_str(), kZELModule)

KORBaseUnknown* ZELEJohnsonCookData::CreateItself() {
    return new ZELEJohnsonCookData;
}

extern "C" KOR_EXPORT KORIUnknown* CreateTIEZELIJohnsonCookDataZELEJohnsonCookData(
    KORBaseUnknown* implementation, KORBaseUnknown* outer) {
    return KORCreateTie<TIEZELIJohnsonCookData<ZELEJohnsonCookData>>(implementation, outer);
}

namespace {

const KORFillDictionary entry(ZELEJohnsonCookData::MetaObject(), ZELIJohnsonCookData::MetaObject(),
                              CreateTIEZELIJohnsonCookDataZELEJohnsonCookData, nullptr, 1);

ZELKeySlot coeffA(ZELKey::CoeffA);
ZELKeySlot coeffB(ZELKey::CoeffB);
ZELKeySlot coeffN(ZELKey::CoeffN);
ZELKeySlot coeffM(ZELKey::CoeffM);
ZELKeySlot meltingTemperature(ZELKey::MeltingTemperature);
ZELKeySlot transitionTemperature(ZELKey::TransitionTemperature);

}  // namespace

KORISpecObject_var ZELEJohnsonCookData::Feature() {
    return KORISpecObject_var::Of(this);
}

HRESULT ZELEJohnsonCookData::GetCoeffA(double& value) {
    return ZELGetValue(Feature().Get(), coeffA, value);
}

HRESULT ZELEJohnsonCookData::SetCoeffA(const double& value) {
    return ZELSetValue(Feature().Get(), coeffA, value);
}

HRESULT ZELEJohnsonCookData::GetCoeffB(double& value) {
    return ZELGetValue(Feature().Get(), coeffB, value);
}

HRESULT ZELEJohnsonCookData::SetCoeffB(const double& value) {
    return ZELSetValue(Feature().Get(), coeffB, value);
}

HRESULT ZELEJohnsonCookData::GetCoeffN(double& value) {
    return ZELGetValue(Feature().Get(), coeffN, value);
}

HRESULT ZELEJohnsonCookData::SetCoeffN(const double& value) {
    return ZELSetValue(Feature().Get(), coeffN, value);
}

HRESULT ZELEJohnsonCookData::GetCoeffM(double& value) {
    return ZELGetValue(Feature().Get(), coeffM, value);
}

HRESULT ZELEJohnsonCookData::SetCoeffM(const double& value) {
    return ZELSetValue(Feature().Get(), coeffM, value);
}

HRESULT ZELEJohnsonCookData::GetMeltingTemperature(double& value) {
    return ZELGetValue(Feature().Get(), meltingTemperature, value);
}

HRESULT ZELEJohnsonCookData::SetMeltingTemperature(const double& value) {
    return ZELSetValue(Feature().Get(), meltingTemperature, value);
}

HRESULT ZELEJohnsonCookData::GetTransitionTemperature(double& value) {
    return ZELGetValue(Feature().Get(), transitionTemperature, value);
}

HRESULT ZELEJohnsonCookData::SetTransitionTemperature(const double& value) {
    return ZELSetValue(Feature().Get(), transitionTemperature, value);
}
