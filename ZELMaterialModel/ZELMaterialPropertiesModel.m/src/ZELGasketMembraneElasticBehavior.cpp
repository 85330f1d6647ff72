#include "ZELMaterialModel/include/ZELGasketMembraneElasticBehavior.h"

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELGasketElasticDescription.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialConstants.h"

namespace {

constexpr const KORUnicodeString* kColumns[] = {
    &ZELKey::ZELGasketMembraneElasticYoungsModulusData,
    &ZELKey::ZELGasketMembraneElasticPoissonsRatioData,
    &ZELKey::ZELGasketMembraneElasticTemperatureData,
};

constexpr ZELGasketElasticDescription kDescription{
    .component = ZELKey::ZELGasketMembraneElastic,
    .enabled = ZELKey::ZELGasketMembraneElasticFlag,
    .dataFile = ZELKey::ZELGasketMembraneElasticDataFile,
    .temperatureDependent = ZELKey::ZELGasketMembraneElasticTemperatureDepFlag,
    .columns = kColumns,
    .noFeature = "No ZELGasketMembraneBehavior object found !",
};

}  // namespace

ZELGasketMembraneElasticBehavior::ZELGasketMembraneElasticBehavior(KORISpecObject* material)
    : ZELGasketElasticBehavior(material, kDescription) {}

HRESULT ZELGasketMembraneElasticBehavior::SetGasketMembraneElasticDataArray(
    const ZELCftArrayZELCftArrayDouble& rows) {
    const HRESULT status = SetDataArray(rows);
    if (FAILED(status)) return status;
    for (int row = 0; row < rows.size(); ++row) {
        const double poissonsRatio = rows[row][1];
        if (poissonsRatio <= -1.0 || poissonsRatio >= 0.5) return E_FAIL;
    }
    return S_OK;
}
