#pragma once

#include "ZELMaterialModel/include/ZELGasketMembraneElasticBehavior.h"
#include "ZELMaterialModel/include/ZELGasketThicknessBehavior.h"
#include "ZELMaterialModel/include/ZELGasketTransverseShearElasticBehavior.h"
#include "ZELMaterialModel/include/ZELGenHeapObjectProxy.h"
#include "ZELMaterialModel/include/ZELHyperelastic.h"
#include "ZELMaterialModel/include/ZELMaterialConductivity.h"
#include "ZELMaterialModel/include/ZELMaterialDensity.h"
#include "ZELMaterialModel/include/ZELMaterialElastic.h"
#include "ZELMaterialModel/include/ZELMaterialPlastic.h"
#include "ZELMaterialModel/include/ZELMaterialSpecificHeat.h"
#include "ZELMaterialModel/include/ZELMaterialThermalExpansion.h"
#include "ZELMaterialModel/include/ZELModuleObject.h"
#include "ZELMaterialModel/include/ZELUserMaterial.h"
#include "framework/KORExport.h"
#include "interfaces/KORISpecObject.h"

/// The analysis properties of one material: the extension of "ZELMaterialLT" features that implements
/// ZELIMaterial. It builds one behavior object per behavior over the material feature and shares them with
/// callers through proxies. It holds no numbers; those live in the behaviors and in the store.
///
/// The operations that are in no interface are reached through KORGetImplementation<ZELMaterial>.
class KOR_EXPORT ZELMaterial final : public KORBaseUnknown, private ZELModuleObject {
    KORDeclareClass

    /// Builds the six behaviors that every release knew, then has the material upgraded, then builds the
    /// others over what the upgrade made. What cannot be built is reported on the diagnostic output and
    /// leaves its proxy empty.
    ZELMaterial();
    ~ZELMaterial() override;

    void GetElasticProperties(ZELGenHeapObjectProxy<ZELMaterialElastic>& proxy) { proxy = elastic_; }
    void GetPlasticProperties(ZELGenHeapObjectProxy<ZELMaterialPlastic>& proxy) { proxy = plastic_; }
    void GetDensityProperties(ZELGenHeapObjectProxy<ZELMaterialDensity>& proxy) { proxy = density_; }
    void GetThermalExpansionProperties(ZELGenHeapObjectProxy<ZELMaterialThermalExpansion>& proxy) {
        proxy = thermalExpansion_;
    }
    void GetConductivityProperties(ZELGenHeapObjectProxy<ZELMaterialConductivity>& proxy) {
        proxy = conductivity_;
    }
    void GetSpecificHeatProperties(ZELGenHeapObjectProxy<ZELMaterialSpecificHeat>& proxy) {
        proxy = specificHeat_;
    }
    void GetUserMaterialProperties(ZELGenHeapObjectProxy<ZELUserMaterial>& proxy) { proxy = userMaterial_; }
    void GetHyperelasticProperties(ZELGenHeapObjectProxy<ZELHyperelastic>& proxy) { proxy = hyperelastic_; }
    void GetGasketThicknessBehaviorProperties(ZELGenHeapObjectProxy<ZELGasketThicknessBehavior>& proxy) {
        proxy = gasketThickness_;
    }
    void GetGasketTransShearElasticProperties(
        ZELGenHeapObjectProxy<ZELGasketTransverseShearElasticBehavior>& proxy) {
        proxy = gasketTransverseShear_;
    }
    void GetGasketMembraneElasticProperties(ZELGenHeapObjectProxy<ZELGasketMembraneElasticBehavior>& proxy) {
        proxy = gasketMembrane_;
    }

    /// The material's own flag. E_FAIL, and `enabled` untouched, when the material offers no attribute access
    /// or lacks the flag. (The behaviors answer E_NOINTERFACE for the first.)
    HRESULT GetHeatGenerationEnabled(bool& enabled);
    HRESULT SetHeatGenerationEnabled(bool enabled);

    /// Whether any property is enabled, whatever the name says: one of the eight behaviors or heat
    /// generation. The gaskets do not count. E_FAIL, and false, when a behavior is missing or cannot answer.
    HRESULT IsAllZelmarPropertiesEnabled(bool& enabled);

    unsigned char ISGasketEnabled();  ///< false when there is no gasket behavior to ask

    /// The name under which a platform material holds its "ZELMaterialLT" feature.
    static KORUnicodeString GetApplicativeSpecName();

private:
    KORISpecObject_var material_;
    ZELGenHeapObjectProxy<ZELMaterialElastic> elastic_;
    ZELGenHeapObjectProxy<ZELMaterialPlastic> plastic_;
    ZELGenHeapObjectProxy<ZELMaterialDensity> density_;
    ZELGenHeapObjectProxy<ZELMaterialThermalExpansion> thermalExpansion_;
    ZELGenHeapObjectProxy<ZELMaterialConductivity> conductivity_;
    ZELGenHeapObjectProxy<ZELMaterialSpecificHeat> specificHeat_;
    ZELGenHeapObjectProxy<ZELUserMaterial> userMaterial_;
    ZELGenHeapObjectProxy<ZELHyperelastic> hyperelastic_;
    ZELGenHeapObjectProxy<ZELGasketThicknessBehavior> gasketThickness_;
    ZELGenHeapObjectProxy<ZELGasketTransverseShearElasticBehavior> gasketTransverseShear_;
    ZELGenHeapObjectProxy<ZELGasketMembraneElasticBehavior> gasketMembrane_;
};
