#pragma once

#include "interfaces/KORDocument.h"
#include "interfaces/KORIMaterialFeature.h"
#include "interfaces/KORISpecObject.h"

inline const KORIID IID_ZELIMaterialPropertiesFact = KORName::Intern("ZELIMaterialPropertiesFact");

/// Factory of analysis data, obtained from the component "ZELMaterialPropertiesFact". It keeps no state;
/// every call works only on its arguments.
class ZELIMaterialPropertiesFact : public KORInterface<IID_ZELIMaterialPropertiesFact> {
public:
    /// Creates the complete analysis data of a platform material, in the material's own container: a
    /// "ZELMaterialLT" feature with one fresh feature per behavior beneath it, and the starting values of
    /// the gasket behaviors. Every call makes a new tree; hanging it on the material is the caller's
    /// business.
    ///
    /// `created` receives the root with one reference for the caller as soon as it exists, whatever fails
    /// later; it is untouched for a null material and before instantiation was tried, null when that made
    /// nothing. E_FAIL at the first step that fails; what was made before stays in the container.
    [[nodiscard]] virtual HRESULT CreateZELMaterialProperty(KORIMaterialFeature*& material,
                                                            KORISpecObject*& created) = 0;

    /// Creates an empty layup with a unique visible name ("Layup-1") in the analysis property set of a
    /// document, and the set first if there is none. A null document stands for the one that the user works
    /// on.
    ///
    /// E_FAIL, or the status of the property set's creation or of the naming. `layup` is set as soon as there
    /// is one; a layup that could not be named stays in the document.
    [[nodiscard]] virtual HRESULT CreateLayup(KORISpecObject_var& layup, KORDocument* document) = 0;

    /// Creates a bare layer in the document of any feature of it. The caller fills it and hands it to a
    /// layup; it stands in no set and has no unique name. E_FAIL when the context is null or no layer comes
    /// of it.
    [[nodiscard]] virtual HRESULT CreateLayupLayer(const KORISpecObject_var& context,
                                                   KORISpecObject_var& layer) = 0;

protected:
    ~ZELIMaterialPropertiesFact() = default;
};

using ZELIMaterialPropertiesFact_var = KORVar<ZELIMaterialPropertiesFact>;
