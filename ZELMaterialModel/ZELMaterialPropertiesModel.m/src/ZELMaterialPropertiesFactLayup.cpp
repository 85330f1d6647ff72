// The analysis side of the factory: looking up the document's analysis model, and creating layups and layers.

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialConstants.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialPropertiesFact.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELModuleCatalog.h"
#include "ZELShared/ZELAnalysisDocUtils.h"
#include "ZELShared/ZELIKqcAnalysisCaseFact.h"
#include "ZELShared/ZELNameUtil.h"
#include "framework/KORInstantiateComponent.h"
#include "interfaces/KORIAlias.h"
#include "interfaces/KORISamAnalysisSet.h"

namespace {

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
    void* feature = nullptr;
    status = analysisModel->QueryInterface(IID_KORISpecObject, &feature);
    if (FAILED(status)) return status;
    model = static_cast<KORISpecObject*>(feature);
    return S_OK;
}

HRESULT ZELMaterialPropertiesFact::CreateZelmarPropertiesSet(KORDocument* document) {
    void* found = nullptr;
    const HRESULT created =
        KORInstantiateComponent("ZELKqcAnalysisCaseFact", IID_ZELIKqcAnalysisCaseFact, &found);
    if (FAILED(created) || !found) return E_FAIL;
    // Kept for good: the analysis-case module counts on its factory staying alive once it was asked for a
    // set.
    auto* factory = static_cast<ZELIKqcAnalysisCaseFact*>(found);
    const HRESULT status = factory->CreatePropertySet(document);
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
    KORICatalog_var catalog;
    if (FAILED(ZELOpenModuleCatalog(container.Get(), catalog))) return E_FAIL;
    return ZELInstantiate(*catalog, ZELLateType::ZELLayupLayerLT, ZELLateType::ZELLayupLayerLT,
                          container.Get(), layer);
}
