#pragma once

#include "ZELMaterialModel/include/ZELILayup.h"
#include "framework/KORTie.h"

/// Binding of ZELILayup to an implementing class.
template <class Implementation>
class TIEZELILayup final : public KORTie<ZELILayup, Implementation> {
public:
    using KORTie<ZELILayup, Implementation>::KORTie;

    HRESULT SetLayers(const KORListValKORISpecObject_var& layers) override {
        return this->Called(__func__)->SetLayers(layers);
    }
    HRESULT GetLayers(KORListValKORISpecObject_var& layers) override {
        return this->Called(__func__)->GetLayers(layers);
    }
    bool IsUnused() override { return this->Called(__func__)->IsUnused(); }
};
