#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialPropertiesFact.h"

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialConstants.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELModule.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELModuleCatalog.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/store/ZELAttribute.h"
#include "ZELMaterialModel/include/TIEZELIMaterialPropertiesFact.h"
#include "ZELMaterialModel/include/ZELGasketMembraneElasticBehavior.h"
#include "ZELMaterialModel/include/ZELGasketThicknessBehavior.h"
#include "ZELMaterialModel/include/ZELGasketTransverseShearElasticBehavior.h"
#include "ZELMaterialModel/include/ZELIMaterial.h"
#include "framework/KORDictionary.h"
#include "interfaces/KORILinkableObject.h"

KORImplementClass(ZELMaterialPropertiesFact, KORClassKind::Component, "KORnull", kZELModule)

// The component comes from its instance factory only.
KORBaseUnknown* ZELMaterialPropertiesFact::CreateItself() {
    return nullptr;
}

extern "C" KOR_EXPORT KORIUnknown* CreateTIEZELIMaterialPropertiesFactZELMaterialPropertiesFact(
    KORBaseUnknown* implementation, KORBaseUnknown* outer) {
    return KORCreateTie<TIEZELIMaterialPropertiesFact<ZELMaterialPropertiesFact>>(implementation, outer);
}

namespace {

const KORFillDictionary entry(ZELMaterialPropertiesFact::MetaObject(),
                              ZELIMaterialPropertiesFact::MetaObject(),
                              CreateTIEZELIMaterialPropertiesFactZELMaterialPropertiesFact, nullptr, 1);

/// A feature of the tree and where it hangs.
struct Branch {
    const KORUnicodeString& lateType;
    const KORUnicodeString& name;  ///< component attribute on the parent
};

constexpr Branch kBehaviors[] = {
    {ZELLateType::ZELElasticLT, ZELKey::ZELElastic},
    {ZELLateType::ZELPlasticLT, ZELKey::ZELPlastic},
    {ZELLateType::ZELDensityLT, ZELKey::ZELDensity},
    {ZELLateType::ZELThermalExpansionLT, ZELKey::ZELThermalExpansion},
    {ZELLateType::ZELConductivityLT, ZELKey::ZELConductivity},
    {ZELLateType::ZELSpecificHeatLT, ZELKey::ZELSpecificHeat},
    {ZELLateType::MRVUserMaterialLT, ZELKey::ZELUserMaterial},
    {ZELLateType::ZELGasketThicknessBehaviorLT, ZELKey::ZELGasketThicknessBehavior},
    {ZELLateType::ZELGasketTransverseShearElasticLT, ZELKey::ZELGasketTransverseShearElastic},
    {ZELLateType::ZELGasketMembraneElasticLT, ZELKey::ZELGasketMembraneElastic},
};

constexpr Branch kGasketTables[] = {
    {ZELLateType::ZELGasketThicknessBehaviorLoadingLT, ZELKey::ZELGasketThicknessBehaviorLoading},
    {ZELLateType::ZELGasketThicknessBehaviorUnLoadingEPLT,
     ZELKey::ZELGasketThicknessBehaviorUnLoadingElasticPlastic},
    {ZELLateType::ZELGasketThicknessBehaviorUnLoadingDamageLT,
     ZELKey::ZELGasketThicknessBehaviorUnLoadingDamage},
};

/// A new feature for a branch, hung on its parent.
HRESULT Grow(KORICatalog& catalog, KORIContainer* container, const Branch& branch, KORISpecAttrAccess& parent,
             KORISpecObject_var& grown) {
    if (FAILED(ZELInstantiate(catalog, branch.lateType, branch.lateType, container, grown))) return E_FAIL;
    ZELKeyOnce holder(branch.name);
    KORISpecAttrKey* key = holder.Resolve(parent);
    if (!key) return E_FAIL;
    ZELWrite(parent, key, KORBaseUnknown_var(grown));
    return S_OK;
}

}  // namespace

HRESULT ZELMaterialPropertiesFact::CreateZELMaterialProperty(KORIMaterialFeature*& material,
                                                             KORISpecObject*& created) {
    Place place;
    if (FAILED(OpenPlace(material, place))) return E_FAIL;
    const KORISpecObject_var startUp = ZELRetrieveStartUp(*place.catalog, ZELLateType::ZELMaterialLT);
    if (!startUp) return E_FAIL;
    created = startUp->Instantiate(ZELLateType::ZELMaterialLT, place.container.Get());
    const KORISpecObject_var root(created);
    if (!root || FAILED(CreateBehaviors(place, root.Get()))) return E_FAIL;
    return WriteGasketStart(root.Get());
}

HRESULT ZELMaterialPropertiesFact::OpenPlace(KORIMaterialFeature* material, Place& place) {
    if (!KORILinkableObject_var::Of(material)) return E_FAIL;  // no live object of a document
    const auto feature = KORISpecObject_var::Of(material);
    if (!feature) return E_FAIL;
    place.container = KORIContainer_var(KORBaseUnknown_var::Adopt(feature->GetFeatContainer()));
    return place.container ? ZELFailOnly(ZELOpenModuleCatalog(place.container.Get(), place.catalog)) : E_FAIL;
}

HRESULT ZELMaterialPropertiesFact::CreateBehaviors(const Place& place, KORISpecObject* root) {
    const auto access = KORISpecAttrAccess_var::Of(root);
    if (!access) return E_FAIL;
    for (const Branch& branch : kBehaviors) {
        KORISpecObject_var grown;
        if (FAILED(Grow(*place.catalog, place.container.Get(), branch, *access, grown))) return E_FAIL;
        const bool hasTables = &branch.name == &ZELKey::ZELGasketThicknessBehavior;
        if (hasTables && FAILED(CreateGasketTables(place, grown.Get()))) return E_FAIL;
    }
    return S_OK;
}

HRESULT ZELMaterialPropertiesFact::CreateGasketTables(const Place& place, KORISpecObject* thickness) {
    const auto access = KORISpecAttrAccess_var::Of(thickness);
    if (!access) return E_FAIL;
    for (const Branch& branch : kGasketTables) {
        KORISpecObject_var grown;
        if (FAILED(Grow(*place.catalog, place.container.Get(), branch, *access, grown))) return E_FAIL;
    }
    return S_OK;
}

HRESULT ZELMaterialPropertiesFact::WriteGasketStart(KORISpecObject* root) {
    const auto material = ZELIMaterial_var::Of(root);
    if (!material) return E_FAIL;
    ZELGenHeapObjectProxy<ZELGasketThicknessBehavior> thickness;
    material->GetGasketThicknessBehaviorProperties(thickness);
    if (thickness.IsObject()) {
        thickness->SetGasketThicknessBehaviorType(ZELGasketThicknessBehavior::InitialThicknessType);
        thickness->SetGasketYieldOnsetMethodType(ZELGasketThicknessBehavior::InitialYieldOnsetMethod);
        thickness->SetGasketYieldOnsetMethodRelativeValue(0.1);
        thickness->SetGasketYieldOnsetMethodClosureValue(0.0001);
        thickness->SetGasketTensileStiffnessFactor(0.001);
        thickness->SetGasketThicknessUnLoadingFlag(0);
        thickness->SetGasketLoadingTemperatureDependentFlag(0);
        thickness->SetGasketUnLoadingEPTemperatureDependentFlag(0);
        thickness->SetGasketUnLoadingDamageTemperatureDependentFlag(0);
    }
    // Membrane before transverse shear here, although the features were made the other way round.
    ZELGenHeapObjectProxy<ZELGasketMembraneElasticBehavior> membrane;
    material->GetGasketMembraneElasticProperties(membrane);
    if (membrane.IsObject()) {
        membrane->SetGasketMembraneElasticTempDepFlag(0);
        membrane->SetGasketMembraneElasticFlag(0);
    }
    ZELGenHeapObjectProxy<ZELGasketTransverseShearElasticBehavior> transverseShear;
    material->GetGasketTransShearElasticProperties(transverseShear);
    if (transverseShear.IsObject()) {
        transverseShear->SetGasketTransverseShearElasticTempDepFlag(0);
        transverseShear->SetGasketTransverseShearElasticFlag(0);
    }
    return S_OK;
}
