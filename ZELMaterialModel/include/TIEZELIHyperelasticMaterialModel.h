#pragma once

#include "ZELMaterialModel/include/ZELIHyperelasticMaterialModel.h"
#include "framework/KORTie.h"

/// Binding of ZELIHyperelasticMaterialModel to an implementing class.
template <class Implementation>
class TIEZELIHyperelasticMaterialModel final : public KORTie<ZELIHyperelasticMaterialModel, Implementation> {
public:
    using KORTie<ZELIHyperelasticMaterialModel, Implementation>::KORTie;

    HRESULT GetStrainEnergyPotentialOrder(int& order) override {
        return this->Called(__func__)->GetStrainEnergyPotentialOrder(order);
    }
    HRESULT SetStrainEnergyPotentialOrder(int order) override {
        return this->Called(__func__)->SetStrainEnergyPotentialOrder(order);
    }
    HRESULT GetPropertyTemperatureDependent(unsigned char& dependent) override {
        return this->Called(__func__)->GetPropertyTemperatureDependent(dependent);
    }
    HRESULT SetPropertyTemperatureDependent(unsigned char dependent) override {
        return this->Called(__func__)->SetPropertyTemperatureDependent(dependent);
    }
    HRESULT GetPropertyDataFile(KORUnicodeString& name) override {
        return this->Called(__func__)->GetPropertyDataFile(name);
    }
    HRESULT SetPropertyDataFile(const KORUnicodeString& name) override {
        return this->Called(__func__)->SetPropertyDataFile(name);
    }
    HRESULT GetPropertyData(ZELCftArrayZELCftArrayDouble& rows) override {
        return this->Called(__func__)->GetPropertyData(rows);
    }
    HRESULT SetPropertyData(const ZELCftArrayZELCftArrayDouble& rows) override {
        return this->Called(__func__)->SetPropertyData(rows);
    }
};
