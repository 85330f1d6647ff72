#include "tests/ZELMaterialModel/ZELAnalysisServices.h"

#include "ZELShared/ZELAnalysisDocUtils.h"
#include "ZELShared/ZELNameUtil.h"
#include "interfaces/KORIAnalysisDocument.h"
#include "interfaces/KORILinkableObject.h"

ZELAnalysisServices* ZELAnalysisServices::current = nullptr;

namespace {

const ZELAnalysisServices& Services() {
    return *ZELAnalysisServices::current;
}

KORIAnalysisDocument_var AnalysisOf(const KORDocument* document) {
    return KORIAnalysisDocument_var::Of(const_cast<KORDocument*>(document));
}

}  // namespace

HRESULT ZELAnalysisDocUtils::GetCurrentDocument(KORDocument*& document) {
    if (SUCCEEDED(Services().getCurrentDocument)) document = Services().currentDocument;
    return Services().getCurrentDocument;
}

HRESULT ZELAnalysisDocUtils::GetDocument(KORDocument*& document, const KORBaseUnknown_var& feature) {
    if (SUCCEEDED(Services().getDocument)) document = KORILinkableObject_var(feature)->GetDocument();
    return Services().getDocument;
}

HRESULT ZELAnalysisDocUtils::GetSpecContainer(KORIContainer*& container, KORDocument* document) {
    if (SUCCEEDED(Services().getSpecContainer) && Services().givesContainer) {
        container = KORIContainer_var(KORBaseUnknown_var::Adopt(document->GetFeatContainer())).Detach();
    }
    return Services().getSpecContainer;
}

HRESULT ZELAnalysisDocUtils::LoadCatalog(const char* catalog, KORDocument* document) {
    return FAILED(Services().loadCatalog) ? Services().loadCatalog
                                          : AnalysisOf(document)->LoadCatalog(catalog);
}

HRESULT ZELAnalysisDocUtils::GetFactory(KORISamAnalysisModelFactory_var& factory,
                                        const KORDocument* document) {
    if (SUCCEEDED(Services().getFactory) && Services().givesFactory) {
        factory = KORISamAnalysisModelFactory_var::Adopt(AnalysisOf(document)->GetFactory());
    }
    return Services().getFactory;
}

HRESULT ZELAnalysisDocUtils::GetAnalysisModel(KORISamAnalysisModel_var& model, const KORDocument* document) {
    if (SUCCEEDED(Services().getAnalysisModel) && Services().givesAnalysisModel) {
        model = KORISamAnalysisModel_var::Adopt(AnalysisOf(document)->GetAnalysisModel());
    }
    return Services().getAnalysisModel;
}

HRESULT ZELNameUtil::GetNextUniqueName(KORUnicodeString& name, const KORListValKORBaseUnknown_var&) {
    if (SUCCEEDED(Services().getNextUniqueName)) name = "Unique";
    return Services().getNextUniqueName;
}
