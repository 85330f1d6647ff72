#include "ZELMaterialModel/include/ZELMaterialDensity.h"

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialConstants.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELTableDescription.h"

namespace {

ZELKeySlot columns[] = {ZELKeySlot(ZELKey::DensityData), ZELKeySlot(ZELKey::TemperatureData)};

ZELTableDescription description{
    .component = ZELKey::ZELDensity,
    .enabled = ZELKeySlot(ZELKey::ZELDensityFlag),
    .temperatureDependent = ZELKeySlot(ZELKey::TemperatureDependent),
    .dataFile = ZELKeySlot(ZELKey::DataFile),
    .columns = columns,
    .noFeature = "No ZELDensity object found !",
    .inconsistent = "The Density data is inconsistent !",
    .inconsistentStatus = E_FAIL,
};

}  // namespace

ZELMaterialDensity::ZELMaterialDensity(KORISpecObject* material) : ZELTableBehavior(material, description) {
    if (IsBound()) Report(InitDensityProperties(), "Initialization of ZELDensity failed !");
}

HRESULT ZELMaterialDensity::InitDensityProperties() {
    Report(GetPropertyDensityEnabled(), "Can't get property density enabled");
    Report(GetPropertyTemperatureDependent(), "Can't get property temperature dependent");
    Report(GetPropertyDensityDataArray(), "Can't get property density data array");
    Report(GetPropertyDataFile(), "Can't get property density data file");
    return S_OK;
}
