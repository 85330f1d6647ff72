#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELELayupLayer.h"

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialConstants.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELModule.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/store/ZELAttribute.h"
#include "ZELMaterialModel/include/TIEZELILayupLayer.h"
#include "ZELMaterialModel/include/ZELMaterial.h"
#include "ZELShared/ZELIAnalysisMaterial.h"
#include "framework/KORDictionary.h"
#include "interfaces/KORIMaterialSupport.h"

KORImplementClass(ZELELayupLayer, KORClassKind::DataExtension, ZELLateType::ZELLayupLayerLT.c_str(),
                  kZELModule)

KORBaseUnknown* ZELELayupLayer::CreateItself() {
    return new ZELELayupLayer;
}

extern "C" KOR_EXPORT KORIUnknown* CreateTIEZELILayupLayerZELELayupLayer(KORBaseUnknown* implementation,
                                                                         KORBaseUnknown* outer) {
    return KORCreateTie<TIEZELILayupLayer<ZELELayupLayer>>(implementation, outer);
}

namespace {

const KORFillDictionary entry(ZELELayupLayer::MetaObject(), ZELILayupLayer::MetaObject(),
                              CreateTIEZELILayupLayerZELELayupLayer, nullptr, 1);

}  // namespace

HRESULT ZELELayupLayer::SetMaterial(const KORISpecObject_var& material) {
    return ZELFailOnly(
        ZELSetValue(Feature().Get(), ZELKeyOnce(ZELKey::UserMaterial), KORBaseUnknown_var(material)));
}

// Leaves the caller's handle alone when there is no material; the hyperelastic behavior empties it. Whoever
// reads several layers takes a fresh handle for each.
HRESULT ZELELayupLayer::GetMaterial(KORISpecObject_var& material) {
    KORBaseUnknown_var stored;
    const HRESULT status = ZELGetValue(Feature().Get(), ZELKeyOnce(ZELKey::UserMaterial), stored);
    if (FAILED(status)) return E_FAIL;
    if (stored) material = stored;
    return S_OK;
}

HRESULT ZELELayupLayer::SetThickness(const double& thickness) {
    return ZELFailOnly(ZELSetValue(Feature().Get(), ZELKeyOnce(ZELKey::Thickness), thickness));
}

HRESULT ZELELayupLayer::GetThickness(double& thickness) {
    return ZELFailOnly(ZELGetValue(Feature().Get(), ZELKeyOnce(ZELKey::Thickness), thickness));
}

HRESULT ZELELayupLayer::SetOrientationAngle(const double& angle) {
    return ZELFailOnly(ZELSetValue(Feature().Get(), ZELKeyOnce(ZELKey::OrientationAngle), angle));
}

HRESULT ZELELayupLayer::GetOrientationAngle(double& angle) {
    return ZELFailOnly(ZELGetValue(Feature().Get(), ZELKeyOnce(ZELKey::OrientationAngle), angle));
}

HRESULT ZELELayupLayer::GetMaterialData(ZELIMaterial_var& data) {
    KORISpecObject_var material;
    if (FAILED(GetMaterial(material)) || !material) return E_FAIL;
    const KORIMaterialSupport_var supported(material);
    if (!ZELIAnalysisMaterial_var(material) || !supported) return E_FAIL;
    const auto support = KORBaseUnknown_var::Adopt(supported->GetSupport());
    const KORIApplicativeHolder_var holder(support);
    if (!holder) return E_FAIL;

    // The first look-up has the material built, and upgraded if it is old, which may put another feature in
    // its place; the second finds the one that is there then.
    const KORUnicodeString name = ZELMaterial::GetApplicativeSpecName();
    static_cast<void>(ZELIMaterial_var(KORBaseUnknown_var::Adopt(holder->FindApplicative(name))));
    const auto applicative = KORBaseUnknown_var::Adopt(holder->FindApplicative(name));
    const ZELIMaterial_var found(applicative);
    if (!found) return E_FAIL;
    data = found;
    return S_OK;
}
