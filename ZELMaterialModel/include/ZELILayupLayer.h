#pragma once

#include "ZELMaterialModel/include/ZELIMaterial.h"
#include "interfaces/KORISpecObject.h"

inline const KORIID IID_ZELILayupLayer = KORName::Intern("ZELILayupLayer");

/// One layer of a layup, on features of late type "ZELLayupLayerLT". Values are stored unconverted (m,
/// degrees).
///
/// S_OK or E_FAIL; the argument of a getter is untouched on failure.
class ZELILayupLayer : public KORInterface<IID_ZELILayupLayer> {
public:
    /// The platform material that the layer is made of; an empty handle takes it away.
    virtual HRESULT SetMaterial(const KORISpecObject_var& material) = 0;

    /// S_OK, and the caller's handle as it was, when the layer has no material.
    virtual HRESULT GetMaterial(KORISpecObject_var& material) = 0;

    virtual HRESULT SetThickness(const double& thickness) = 0;  ///< m; no range check
    virtual HRESULT GetThickness(double& thickness) = 0;
    virtual HRESULT SetOrientationAngle(const double& angle) = 0;  ///< degrees; no range check
    virtual HRESULT GetOrientationAngle(double& angle) = 0;

    /// The analysis data of the layer's material. E_FAIL when there are none, or the way to them is broken.
    virtual HRESULT GetMaterialData(ZELIMaterial_var& data) = 0;

protected:
    ~ZELILayupLayer() = default;
};

using ZELILayupLayer_var = KORVar<ZELILayupLayer>;
