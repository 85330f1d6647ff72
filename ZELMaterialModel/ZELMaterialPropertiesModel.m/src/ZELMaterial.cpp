#include "ZELMaterialModel/include/ZELMaterial.h"

#include <new>

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialConstants.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELModule.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/store/ZELAttribute.h"
#include "ZELMaterialModel/include/TIEZELIMaterial.h"
#include "framework/KORDiagnostic.h"
#include "framework/KORDictionary.h"
#include "interfaces/KORISamUpgrade.h"

KORImplementClass(ZELMaterial, KORClassKind::DataExtension, ZELLateType::ZELMaterialLT.c_str(), kZELModule)

KORBaseUnknown* ZELMaterial::CreateItself() {
    return new ZELMaterial;
}

extern "C" KOR_EXPORT KORIUnknown* CreateTIEZELIMaterialZELMaterial(KORBaseUnknown* implementation,
                                                                    KORBaseUnknown* outer) {
    return KORCreateTie<TIEZELIMaterial<ZELMaterial>>(implementation, outer);
}

namespace {

const KORFillDictionary entry(ZELMaterial::MetaObject(), ZELIMaterial::MetaObject(),
                              CreateTIEZELIMaterialZELMaterial, nullptr, 1);

ZELKeySlot heatGeneration(ZELKey::ZELHeatGenerationFlag);

template <class Behavior>
void Build(ZELGenHeapObjectProxy<Behavior>& proxy, KORISpecObject* material, const char* failure) {
    if (auto* behavior = new (std::nothrow) Behavior(material)) {
        proxy.InsertObject(behavior);
    } else {
        KORDiagnosticLine(failure);
    }
}

}  // namespace

ZELMaterial::ZELMaterial() : material_(KORISpecObject_var::Of(this)) {
    KORISpecObject* material = material_.Get();
    if (!material) {
        KORDiagnosticLine("Construction of ZELMaterial failed !");
        return;
    }
    Build(elastic_, material, "Construction of ZELElastic failed !");
    Build(plastic_, material, "Construction of ZELPlastic failed !");
    Build(density_, material, "Construction of ZELDensity failed !");
    Build(thermalExpansion_, material, "Construction of ZELThermalExpansion failed !");
    Build(conductivity_, material, "Construction of ZELConductivity failed !");
    Build(specificHeat_, material, "Construction of ZELSpecificHeat failed !");

    auto upgrade = KORISamUpgrade_var::Of(this);
    if (!upgrade) return;
    if (upgrade->IsUpgradeNeeded()) upgrade->Upgrade();  // its status is not looked at
    upgrade = nullptr;

    Build(userMaterial_, material, "Construction of ZELUserMaterial failed !");
    Build(hyperelastic_, material, "Construction of ZELHyperelastic failed !");
    // One text for the three gasket behaviors, on purpose.
    Build(gasketThickness_, material, "Construction of ZELGasketThicknessBehavior failed !");
    Build(gasketTransverseShear_, material, "Construction of ZELGasketThicknessBehavior failed !");
    Build(gasketMembrane_, material, "Construction of ZELGasketThicknessBehavior failed !");
}

ZELMaterial::~ZELMaterial() {
    material_ = nullptr;  // before the behaviors, which are let go from the last to the first
}

HRESULT ZELMaterial::GetHeatGenerationEnabled(bool& enabled) {
    unsigned char flag = 0;
    if (FAILED(ZELGetValue(material_.Get(), heatGeneration, flag))) return E_FAIL;
    enabled = flag != 0;
    return S_OK;
}

HRESULT ZELMaterial::SetHeatGenerationEnabled(bool enabled) {
    return ZELFailOnly(ZELSetValue(material_.Get(), heatGeneration, static_cast<unsigned char>(enabled)));
}

HRESULT ZELMaterial::IsAllZelmarPropertiesEnabled(bool& enabled) {
    enabled = false;
    if (!conductivity_.IsObject() || !elastic_.IsObject() || !plastic_.IsObject() || !density_.IsObject() ||
        !thermalExpansion_.IsObject() || !specificHeat_.IsObject() || !userMaterial_.IsObject() ||
        !hyperelastic_.IsObject()) {
        return E_FAIL;
    }
    const bool inMemory = conductivity_->GetConductivityEnabled() || elastic_->GetElasticEnabled() ||
                          plastic_->GetPlasticEnabled() || density_->GetDensityEnabled() ||
                          thermalExpansion_->GetThermalExpansionEnabled() ||
                          specificHeat_->GetSpecificHeatEnabled();
    unsigned char userMaterial = 0;
    unsigned char hyperelastic = 0;
    bool heat = false;
    if (FAILED(userMaterial_->GetUserMaterialEnabled(userMaterial)) ||
        FAILED(hyperelastic_->GetHyperelasticEnabled(hyperelastic)) ||
        FAILED(GetHeatGenerationEnabled(heat))) {
        return E_FAIL;
    }
    enabled = inMemory || userMaterial || hyperelastic || heat;
    return S_OK;
}

unsigned char ZELMaterial::ISGasketEnabled() {
    unsigned char enabled = 0;
    if (gasketThickness_.IsObject()) gasketThickness_->GetGasketEnabled(enabled);  // a failure leaves it 0
    return enabled;
}

KORUnicodeString ZELMaterial::GetApplicativeSpecName() {
    return "ZELMaterialApplicative";
}
