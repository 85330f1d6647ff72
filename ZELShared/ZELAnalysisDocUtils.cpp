#include "ZELShared/ZELAnalysisDocUtils.h"

#include "framework/KORServices.h"
#include "interfaces/KORIAnalysisDocument.h"
#include "interfaces/KORILinkableObject.h"

namespace {

/// Asking changes nothing in the document, so callers may hold it constant.
KORIAnalysisDocument_var AnalysisOf(const KORDocument* document) {
    return KORIAnalysisDocument_var::Of(const_cast<KORDocument*>(document));
}

}  // namespace

HRESULT ZELAnalysisDocUtils::GetCurrentDocument(KORDocument*& document) {
    const auto current = KORDocument_var::Of(KORServices::Current().currentDocument);
    if (!current) return E_FAIL;
    document = current.Get();
    return S_OK;
}

HRESULT ZELAnalysisDocUtils::GetDocument(KORDocument*& document, const KORBaseUnknown_var& feature) {
    const KORILinkableObject_var linkable(feature);
    KORDocument* found = linkable ? linkable->GetDocument() : nullptr;
    if (!found) return E_FAIL;
    document = found;
    return S_OK;
}

HRESULT ZELAnalysisDocUtils::GetSpecContainer(KORIContainer*& container, KORDocument* document) {
    if (!document) return E_FAIL;
    KORIContainer_var found(KORBaseUnknown_var::Adopt(document->GetFeatContainer()));
    if (!found) return E_FAIL;
    container = found.Detach();
    return S_OK;
}

HRESULT ZELAnalysisDocUtils::LoadCatalog(const char* catalog, KORDocument* document) {
    const auto analysis = AnalysisOf(document);
    return analysis ? analysis->LoadCatalog(catalog) : E_FAIL;
}

HRESULT ZELAnalysisDocUtils::GetFactory(KORISamAnalysisModelFactory_var& factory,
                                        const KORDocument* document) {
    const auto analysis = AnalysisOf(document);
    auto found = KORISamAnalysisModelFactory_var::Adopt(analysis ? analysis->GetFactory() : nullptr);
    if (!found) return E_FAIL;
    factory = found;
    return S_OK;
}

HRESULT ZELAnalysisDocUtils::GetAnalysisModel(KORISamAnalysisModel_var& model, const KORDocument* document) {
    const auto analysis = AnalysisOf(document);
    auto found = KORISamAnalysisModel_var::Adopt(analysis ? analysis->GetAnalysisModel() : nullptr);
    if (!found) return E_FAIL;
    model = found;
    return S_OK;
}
