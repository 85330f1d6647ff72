#pragma once

#include "ZELMaterialModel/include/ZELGenHeapObjectProxy.h"
#include "framework/KORVar.h"

class ZELMaterialElastic;
class ZELMaterialPlastic;
class ZELMaterialDensity;
class ZELMaterialThermalExpansion;
class ZELMaterialConductivity;
class ZELMaterialSpecificHeat;
class ZELUserMaterial;
class ZELHyperelastic;
class ZELGasketThicknessBehavior;
class ZELGasketTransverseShearElasticBehavior;
class ZELGasketMembraneElasticBehavior;

inline const KORIID IID_ZELIMaterial = KORName::Intern("ZELIMaterial");

/// The analysis properties of a material, on features of late type "ZELMaterialLT". Each operation makes the
/// caller's proxy let go of what it held and share the material's behavior; it is empty afterwards when the
/// material has none.
class ZELIMaterial : public KORInterface<IID_ZELIMaterial> {
public:
    virtual void GetElasticProperties(ZELGenHeapObjectProxy<ZELMaterialElastic>& proxy) = 0;
    virtual void GetPlasticProperties(ZELGenHeapObjectProxy<ZELMaterialPlastic>& proxy) = 0;
    virtual void GetDensityProperties(ZELGenHeapObjectProxy<ZELMaterialDensity>& proxy) = 0;
    virtual void GetThermalExpansionProperties(ZELGenHeapObjectProxy<ZELMaterialThermalExpansion>& proxy) = 0;
    virtual void GetConductivityProperties(ZELGenHeapObjectProxy<ZELMaterialConductivity>& proxy) = 0;
    virtual void GetSpecificHeatProperties(ZELGenHeapObjectProxy<ZELMaterialSpecificHeat>& proxy) = 0;
    virtual void GetUserMaterialProperties(ZELGenHeapObjectProxy<ZELUserMaterial>& proxy) = 0;
    virtual void GetHyperelasticProperties(ZELGenHeapObjectProxy<ZELHyperelastic>& proxy) = 0;
    virtual void GetGasketThicknessBehaviorProperties(
        ZELGenHeapObjectProxy<ZELGasketThicknessBehavior>& proxy) = 0;
    virtual void GetGasketTransShearElasticProperties(
        ZELGenHeapObjectProxy<ZELGasketTransverseShearElasticBehavior>& proxy) = 0;
    virtual void GetGasketMembraneElasticProperties(
        ZELGenHeapObjectProxy<ZELGasketMembraneElasticBehavior>& proxy) = 0;

protected:
    ~ZELIMaterial() = default;
};

using ZELIMaterial_var = KORVar<ZELIMaterial>;
