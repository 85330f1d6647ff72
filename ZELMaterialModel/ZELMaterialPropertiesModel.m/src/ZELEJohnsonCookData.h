#pragma once

#include "ZELMaterialModel/include/ZELModuleObject.h"
#include "interfaces/KORISpecObject.h"

/// Implements ZELIJohnsonCookData on "ZELPlasticJohnsonCookLT" features. It holds nothing: every value lives
/// as an attribute of the feature. A code extension, although it sits on a feature's late type.
class ZELEJohnsonCookData final : public KORBaseUnknown, private ZELModuleObject {
    KORDeclareClass

    HRESULT
    GetCoeffA(double& value);
    HRESULT SetCoeffA(const double& value);
    HRESULT GetCoeffB(double& value);
    HRESULT SetCoeffB(const double& value);
    HRESULT GetCoeffN(double& value);
    HRESULT SetCoeffN(const double& value);
    HRESULT GetCoeffM(double& value);
    HRESULT SetCoeffM(const double& value);
    HRESULT GetMeltingTemperature(double& value);
    HRESULT SetMeltingTemperature(const double& value);
    HRESULT GetTransitionTemperature(double& value);
    HRESULT SetTransitionTemperature(const double& value);

private:
    KORISpecObject_var Feature();
};
