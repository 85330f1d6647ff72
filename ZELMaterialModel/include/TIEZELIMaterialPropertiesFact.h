#pragma once

#include "ZELMaterialModel/include/ZELIMaterialPropertiesFact.h"
#include "framework/KORTie.h"

/// Binding of ZELIMaterialPropertiesFact to an implementing class.
template <class Implementation>
class TIEZELIMaterialPropertiesFact final : public KORTie<ZELIMaterialPropertiesFact, Implementation> {
public:
    using KORTie<ZELIMaterialPropertiesFact, Implementation>::KORTie;

    HRESULT CreateZELMaterialProperty(KORIMaterialFeature*& material, KORISpecObject*& created) override {
        return this->Called(__func__)->CreateZELMaterialProperty(material, created);
    }
    HRESULT CreateLayup(KORISpecObject_var& layup, KORDocument* document) override {
        return this->Called(__func__)->CreateLayup(layup, document);
    }
    HRESULT CreateLayupLayer(const KORISpecObject_var& context, KORISpecObject_var& layer) override {
        return this->Called(__func__)->CreateLayupLayer(context, layer);
    }
};
