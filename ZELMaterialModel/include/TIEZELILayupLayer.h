#pragma once

#include "ZELMaterialModel/include/ZELILayupLayer.h"
#include "framework/KORTie.h"

/// Binding of ZELILayupLayer to an implementing class.
template <class Implementation>
class TIEZELILayupLayer final : public KORTie<ZELILayupLayer, Implementation> {
public:
    using KORTie<ZELILayupLayer, Implementation>::KORTie;

    HRESULT SetMaterial(const KORISpecObject_var& material) override {
        return this->Called(__func__)->SetMaterial(material);
    }
    HRESULT GetMaterial(KORISpecObject_var& material) override {
        return this->Called(__func__)->GetMaterial(material);
    }
    HRESULT SetThickness(const double& thickness) override {
        return this->Called(__func__)->SetThickness(thickness);
    }
    HRESULT GetThickness(double& thickness) override {
        return this->Called(__func__)->GetThickness(thickness);
    }
    HRESULT SetOrientationAngle(const double& angle) override {
        return this->Called(__func__)->SetOrientationAngle(angle);
    }
    HRESULT GetOrientationAngle(double& angle) override {
        return this->Called(__func__)->GetOrientationAngle(angle);
    }
    HRESULT GetMaterialData(ZELIMaterial_var& data) override {
        return this->Called(__func__)->GetMaterialData(data);
    }
};
