#pragma once

#include "ZELMaterialModel/include/ZELIMaterial.h"
#include "framework/KORTie.h"

/// Binding of ZELIMaterial to an implementing class.
template <class Implementation>
class TIEZELIMaterial final : public KORTie<ZELIMaterial, Implementation> {
public:
    using KORTie<ZELIMaterial, Implementation>::KORTie;

    void GetElasticProperties(ZELGenHeapObjectProxy<ZELMaterialElastic>& proxy) override {
        this->Called(__func__)->GetElasticProperties(proxy);
    }
    void GetPlasticProperties(ZELGenHeapObjectProxy<ZELMaterialPlastic>& proxy) override {
        this->Called(__func__)->GetPlasticProperties(proxy);
    }
    void GetDensityProperties(ZELGenHeapObjectProxy<ZELMaterialDensity>& proxy) override {
        this->Called(__func__)->GetDensityProperties(proxy);
    }
    void GetThermalExpansionProperties(ZELGenHeapObjectProxy<ZELMaterialThermalExpansion>& proxy) override {
        this->Called(__func__)->GetThermalExpansionProperties(proxy);
    }
    void GetConductivityProperties(ZELGenHeapObjectProxy<ZELMaterialConductivity>& proxy) override {
        this->Called(__func__)->GetConductivityProperties(proxy);
    }
    void GetSpecificHeatProperties(ZELGenHeapObjectProxy<ZELMaterialSpecificHeat>& proxy) override {
        this->Called(__func__)->GetSpecificHeatProperties(proxy);
    }
    void GetUserMaterialProperties(ZELGenHeapObjectProxy<ZELUserMaterial>& proxy) override {
        this->Called(__func__)->GetUserMaterialProperties(proxy);
    }
    void GetHyperelasticProperties(ZELGenHeapObjectProxy<ZELHyperelastic>& proxy) override {
        this->Called(__func__)->GetHyperelasticProperties(proxy);
    }
    void GetGasketThicknessBehaviorProperties(
        ZELGenHeapObjectProxy<ZELGasketThicknessBehavior>& proxy) override {
        this->Called(__func__)->GetGasketThicknessBehaviorProperties(proxy);
    }
    void GetGasketTransShearElasticProperties(
        ZELGenHeapObjectProxy<ZELGasketTransverseShearElasticBehavior>& proxy) override {
        this->Called(__func__)->GetGasketTransShearElasticProperties(proxy);
    }
    void GetGasketMembraneElasticProperties(
        ZELGenHeapObjectProxy<ZELGasketMembraneElasticBehavior>& proxy) override {
        this->Called(__func__)->GetGasketMembraneElasticProperties(proxy);
    }
};
