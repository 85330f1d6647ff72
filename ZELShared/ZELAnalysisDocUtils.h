#pragma once

#include "interfaces/KORDocument.h"
#include "interfaces/KORIContainer.h"
#include "interfaces/KORISamAnalysisModel.h"

/// Looks things up in documents for the analysis add-on. Every operation answers a status; its out-parameter
/// is untouched on failure. Raw pointers carry no reference of their own unless it is said.
struct ZELAnalysisDocUtils {
    /// The document that the user works on. E_FAIL when the platform has none.
    static HRESULT GetCurrentDocument(KORDocument*& document);

    /// The document of a feature. E_FAIL when the object is no live object of a document.
    static HRESULT GetDocument(KORDocument*& document, const KORBaseUnknown_var& feature);

    /// The container for a document's own features, with one reference for the caller.
    static HRESULT GetSpecContainer(KORIContainer*& container, KORDocument* document);

    /// Makes the late types of a catalog known to a document. E_FAIL when the catalog cannot be opened.
    [[nodiscard]] static HRESULT LoadCatalog(const char* catalog, KORDocument* document);

    /// The document's analysis-model factory and its analysis model. E_FAIL when it has none.
    static HRESULT GetFactory(KORISamAnalysisModelFactory_var& factory, const KORDocument* document);
    static HRESULT GetAnalysisModel(KORISamAnalysisModel_var& model, const KORDocument* document);
};
