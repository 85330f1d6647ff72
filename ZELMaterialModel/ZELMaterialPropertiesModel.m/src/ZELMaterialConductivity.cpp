#include "ZELMaterialModel/include/ZELMaterialConductivity.h"

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialConstants.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELTableDescription.h"

namespace {

ZELKeySlot columns[] = {ZELKeySlot(ZELKey::ConductivityData), ZELKeySlot(ZELKey::TemperatureData)};

ZELTableDescription description{
    .component = ZELKey::ZELConductivity,
    .enabled = ZELKeySlot(ZELKey::ZELConductivityFlag),
    .temperatureDependent = ZELKeySlot(ZELKey::TemperatureDependent),
    .dataFile = ZELKeySlot(ZELKey::DataFile),
    .columns = columns,
    .noFeature = "No ZELConductivity object found !",
    .inconsistent = "The Conductivity data is inconsistent !",
    .inconsistentStatus = E_FAIL,
};

}  // namespace

ZELMaterialConductivity::ZELMaterialConductivity(KORISpecObject* material)
    : ZELTableBehavior(material, description) {
    if (IsBound()) Report(InitConductivityProperties(), "Initialization of ZELConductivity failed !");
}

HRESULT ZELMaterialConductivity::InitConductivityProperties() {
    Report(GetPropertyConductivityEnabled(), "Can't get property Conductivity enabled");
    Report(GetPropertyTemperatureDependent(), "Can't get property temperature dependent");
    Report(GetPropertyConductivityDataArray(), "Can't get property Conductivity data array");
    Report(GetPropertyDataFile(), "Can't get property Conductivity data file");
    return S_OK;
}
