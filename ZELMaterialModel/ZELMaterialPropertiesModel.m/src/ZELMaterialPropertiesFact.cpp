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
#include "ZELShared/ZELAnalysisDocUtils.h"
#include "ZELShared/ZELIKqcAnalysisCaseFact.h"
#include "ZELShared/ZELNameUtil.h"
#include "framework/KORDictionary.h"
#include "framework/KORInstantiateComponent.h"
#include "interfaces/KORIAlias.h"
#include "interfaces/KORILinkableObject.h"
#include "interfaces/KORISamAnalysisSet.h"

KORImplementClass(ZELMaterialPropertiesFact, KORClassKind::Component, ZELComponent::None.c_str(), kZELModule)

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

constexpr const char* kLayupPrefix = "Layup-";
constexpr int kScanEverything = 3;  ///< the model's own children and those of its sets

KORListValKORISpecObject_var PropertySets(KORISamAnalysisScan& scan) {
    return scan.Scan(ZELLateType::ZELZelmarPropertySetLT, kScanEverything);
}

KORListValKORBaseUnknown_var LayupsOf(KORISamAnalysisSet& set) {
    KORListValKORBaseUnknown_var layups;
    const KORListValKORISpecObject_var features = set.GetFeatures(ZELLateType::ZELLayupLT);
    for (int position = 1; position <= features.Size(); ++position) {
        layups.Append(KORBaseUnknown_var(features[position]));
    }
    return layups;
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

HRESULT ZELMaterialPropertiesFact::GetFEModelInfo(KORDocument*& document, KORISpecObject*& model,
                                                  KORISamAnalysisModelFactory_var& factory) {
    if (!document && (FAILED(ZELAnalysisDocUtils::GetCurrentDocument(document)) || !document)) return E_FAIL;
    HRESULT status = ZELAnalysisDocUtils::LoadCatalog(ZELCatalog::FileName.c_str(), document);
    if (FAILED(status)) return status;
    status = ZELAnalysisDocUtils::GetFactory(factory, document);
    if (FAILED(status)) return status;
    KORISamAnalysisModel_var analysisModel;
    status = ZELAnalysisDocUtils::GetAnalysisModel(analysisModel, document);
    if (FAILED(status)) return status;
    if (!analysisModel) return E_FAIL;
    void* feature = nullptr;
    status = analysisModel->QueryInterface(IID_KORISpecObject, &feature);
    if (FAILED(status)) return status;
    model = static_cast<KORISpecObject*>(feature);
    return S_OK;
}

HRESULT ZELMaterialPropertiesFact::CreateZelmarPropertiesSet(KORDocument* document) {
    ZELIKqcAnalysisCaseFact_var factory;
    if (FAILED(KORInstantiate(ZELComponent::ZELKqcAnalysisCaseFact.c_str(), factory)) || !factory)
        return E_FAIL;
    // Kept for good: the analysis-case module counts on its factory staying alive once it was asked for a
    // set.
    const HRESULT status = factory.Detach()->CreatePropertySet(document);
    return FAILED(status) ? status : S_OK;
}

HRESULT ZELMaterialPropertiesFact::CreateLayup(KORISpecObject_var& layup, KORDocument* document) {
    if (!document && (FAILED(ZELAnalysisDocUtils::GetCurrentDocument(document)) || !document)) return E_FAIL;
    KORISamAnalysisModelFactory_var factory;
    KORISamAnalysisModel_var analysisModel;
    if (FAILED(ZELAnalysisDocUtils::LoadCatalog(ZELCatalog::FileName.c_str(), document)) ||
        FAILED(ZELAnalysisDocUtils::GetFactory(factory, document)) ||
        FAILED(ZELAnalysisDocUtils::GetAnalysisModel(analysisModel, document))) {
        return E_FAIL;
    }
    const KORISpecObject_var model(analysisModel);
    const KORISamAnalysisScan_var scan(analysisModel);
    if (!model || !factory || !scan) return E_FAIL;

    KORListValKORISpecObject_var sets = PropertySets(*scan);
    if (sets.Size() == 0) {
        const HRESULT status = CreateZelmarPropertiesSet(document);
        if (FAILED(status)) return status;
        sets = PropertySets(*scan);
    }
    const KORISamAnalysisSet_var set = sets.Size() > 0 ? KORISamAnalysisSet_var(sets[1]) : nullptr;
    if (!set) return E_FAIL;

    // The entity keeps the bare prefix as its instance name; only the alias is unique.
    KORUnicodeString name(kLayupPrefix);
    layup = KORISpecObject_var(
        KORBaseUnknown_var::Adopt(factory->CreateEntity(ZELLateType::ZELLayupLT, name, model.Get())));
    if (!layup) return E_FAIL;
    const HRESULT status = ZELNameUtil::GetNextUniqueName(name, LayupsOf(*set));
    if (FAILED(status)) return status;
    if (const KORIAlias_var alias(layup); alias) alias->SetAlias(name);
    set->AddChild(layup);
    layup->SetDomain(nullptr);
    return S_OK;
}

HRESULT ZELMaterialPropertiesFact::CreateLayupLayer(const KORISpecObject_var& context,
                                                    KORISpecObject_var& layer) {
    KORDocument* document = nullptr;
    if (!context || FAILED(ZELAnalysisDocUtils::GetDocument(document, KORBaseUnknown_var(context))))
        return E_FAIL;
    KORIContainer* found = nullptr;
    if (FAILED(ZELAnalysisDocUtils::GetSpecContainer(found, document))) return E_FAIL;
    const auto container = KORIContainer_var::Adopt(found);
    return ZELInstantiateAlone(ZELLateType::ZELLayupLayerLT, ZELLateType::ZELLayupLayerLT, container.Get(),
                               layer);
}
