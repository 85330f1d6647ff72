#pragma once

#include "framework/KORVar.h"

inline const KORIID IID_ZELIJohnsonCookData = KORName::Intern("ZELIJohnsonCookData");

/// The six parameters of the Johnson-Cook hardening law, on features of late type "ZELPlasticJohnsonCookLT".
/// Values are stored as given: no unit conversion, no range check.
///
/// E_NOINTERFACE when the feature offers no attribute access, E_FAIL when it lacks the attribute; the
/// argument of a getter is untouched then.
class ZELIJohnsonCookData : public KORInterface<IID_ZELIJohnsonCookData> {
public:
    virtual HRESULT GetCoeffA(double& value) = 0;  ///< A, initial yield stress, Pa
    virtual HRESULT SetCoeffA(const double& value) = 0;
    virtual HRESULT GetCoeffB(double& value) = 0;  ///< B, hardening modulus, Pa
    virtual HRESULT SetCoeffB(const double& value) = 0;
    virtual HRESULT GetCoeffN(double& value) = 0;  ///< n, hardening exponent
    virtual HRESULT SetCoeffN(const double& value) = 0;
    virtual HRESULT GetCoeffM(double& value) = 0;  ///< m, thermal-softening exponent
    virtual HRESULT SetCoeffM(const double& value) = 0;
    virtual HRESULT GetMeltingTemperature(double& value) = 0;  ///< K
    virtual HRESULT SetMeltingTemperature(const double& value) = 0;
    virtual HRESULT GetTransitionTemperature(double& value) = 0;  ///< K
    virtual HRESULT SetTransitionTemperature(const double& value) = 0;

protected:
    ~ZELIJohnsonCookData() = default;
};

using ZELIJohnsonCookData_var = KORVar<ZELIJohnsonCookData>;
