#include "ZELMaterialModel/include/ZELGasketTransverseShearElasticBehavior.h"

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELGasketElasticDescription.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialConstants.h"

namespace {

constexpr const KORUnicodeString* kColumns[] = {
    &ZELKey::ZELGasketTransverseShearElasticShearStiffnessData,
    &ZELKey::ZELGasketTransverseShearElasticTemperatureData,
};

constexpr ZELGasketElasticDescription kDescription{
    .component = ZELKey::ZELGasketTransverseShearElastic,
    .enabled = ZELKey::ZELGasketTransverseShearElasticFlag,
    .dataFile = ZELKey::ZELGasketTransverseShearElasticDataFile,
    .temperatureDependent = ZELKey::ZELGasketTransverseShearElasticTemperatureDepFlag,
    .columns = kColumns,
    .noFeature = "No ZELGasketTransShearBehavior object found !",
};

}  // namespace

ZELGasketTransverseShearElasticBehavior::ZELGasketTransverseShearElasticBehavior(KORISpecObject* material)
    : ZELGasketElasticBehavior(material, kDescription) {}

HRESULT ZELGasketTransverseShearElasticBehavior::SetGasketTransverseShearElasticDataArray(
    const ZELCftArrayZELCftArrayDouble& rows) {
    unsigned char enabled = 0;
    GetFlag(enabled);
    for (int row = 0; enabled && row < rows.size(); ++row) {
        if (rows[row][0] <= 0.0) return E_FAIL;
    }
    return SetDataArray(rows);
}
