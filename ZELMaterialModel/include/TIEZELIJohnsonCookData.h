#pragma once

#include "ZELMaterialModel/include/ZELIJohnsonCookData.h"
#include "framework/KORTie.h"

/// Binding of ZELIJohnsonCookData to an implementing class.
template <class Implementation>
class TIEZELIJohnsonCookData final : public KORTie<ZELIJohnsonCookData, Implementation> {
public:
    using KORTie<ZELIJohnsonCookData, Implementation>::KORTie;

    HRESULT GetCoeffA(double& value) override { return this->Called(__func__)->GetCoeffA(value); }
    HRESULT SetCoeffA(const double& value) override { return this->Called(__func__)->SetCoeffA(value); }
    HRESULT GetCoeffB(double& value) override { return this->Called(__func__)->GetCoeffB(value); }
    HRESULT SetCoeffB(const double& value) override { return this->Called(__func__)->SetCoeffB(value); }
    HRESULT GetCoeffN(double& value) override { return this->Called(__func__)->GetCoeffN(value); }
    HRESULT SetCoeffN(const double& value) override { return this->Called(__func__)->SetCoeffN(value); }
    HRESULT GetCoeffM(double& value) override { return this->Called(__func__)->GetCoeffM(value); }
    HRESULT SetCoeffM(const double& value) override { return this->Called(__func__)->SetCoeffM(value); }
    HRESULT GetMeltingTemperature(double& value) override {
        return this->Called(__func__)->GetMeltingTemperature(value);
    }
    HRESULT SetMeltingTemperature(const double& value) override {
        return this->Called(__func__)->SetMeltingTemperature(value);
    }
    HRESULT GetTransitionTemperature(double& value) override {
        return this->Called(__func__)->GetTransitionTemperature(value);
    }
    HRESULT SetTransitionTemperature(const double& value) override {
        return this->Called(__func__)->SetTransitionTemperature(value);
    }
};
