#pragma once

#include "ZELMaterialModel/include/ZELIMaterial.h"
#include "ZELMaterialModel/include/ZELModuleObject.h"
#include "interfaces/KORISpecObject.h"

/// Implements ZELILayupLayer on "ZELLayupLayerLT" features. It holds nothing but its link to the feature.
class ZELELayupLayer final : public KORBaseUnknown, private ZELModuleObject {
    KORDeclareClass

    HRESULT
    SetMaterial(const KORISpecObject_var& material);
    HRESULT GetMaterial(KORISpecObject_var& material);
    HRESULT SetThickness(const double& thickness);
    HRESULT GetThickness(double& thickness);
    HRESULT SetOrientationAngle(const double& angle);
    HRESULT GetOrientationAngle(double& angle);
    HRESULT GetMaterialData(ZELIMaterial_var& data);

private:
    KORISpecObject_var Feature() { return KORISpecObject_var::Of(this); }
};
