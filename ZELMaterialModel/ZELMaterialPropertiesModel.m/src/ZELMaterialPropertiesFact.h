#pragma once

#include "ZELMaterialModel/include/ZELModuleObject.h"
#include "framework/KORExport.h"
#include "interfaces/KORDocument.h"
#include "interfaces/KORICatalog.h"
#include "interfaces/KORIMaterialFeature.h"
#include "interfaces/KORISamAnalysisModel.h"
#include "interfaces/KORISpecAttrAccess.h"

/// The factory component, registered under no late type and made only through its instance factory. It holds
/// nothing.
class KOR_EXPORT ZELMaterialPropertiesFact final : public KORBaseUnknown, private ZELModuleObject {
    KORDeclareClass

    [[nodiscard]] HRESULT CreateZELMaterialProperty(KORIMaterialFeature*& material, KORISpecObject*& created);
    [[nodiscard]] HRESULT CreateLayup(KORISpecObject_var& layup, KORDocument* document);
    [[nodiscard]] HRESULT CreateLayupLayer(const KORISpecObject_var& context, KORISpecObject_var& layer);

private:
    /// Where new features come from, and where they go.
    struct Place {
        KORICatalog_var catalog;
        KORIContainer_var container;
    };

    static HRESULT OpenPlace(KORIMaterialFeature* material, Place& place);
    static HRESULT CreateBehaviors(const Place& place, KORISpecObject* root);
    static HRESULT CreateGasketTables(const Place& place, KORISpecObject* thickness);
    static HRESULT WriteGasketStart(KORISpecObject* root);

    /// The analysis side of a document, with the module's catalog loaded; a null document is filled with the
    /// current one. The called services' statuses come through. CreateLayup does not use it: it answers
    /// E_FAIL for all of them.
    static HRESULT GetFEModelInfo(KORDocument*& document, KORISpecObject*& model,
                                  KORISamAnalysisModelFactory_var& factory);

    /// Has the analysis-case factory create a document's property set; its failure status, or S_OK.
    static HRESULT CreateZelmarPropertiesSet(KORDocument* document);

    friend class ZELTestAccess;
};
