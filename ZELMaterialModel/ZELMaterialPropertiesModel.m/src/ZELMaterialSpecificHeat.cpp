#include "ZELMaterialModel/include/ZELMaterialSpecificHeat.h"

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialConstants.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELTableDescription.h"

namespace {

ZELKeySlot columns[] = {ZELKeySlot(ZELKey::SpecificHeatData), ZELKeySlot(ZELKey::TemperatureData)};

ZELTableDescription description{
    .component = ZELKey::ZELSpecificHeat,
    .enabled = ZELKeySlot(ZELKey::ZELSpecificHeatFlag),
    .temperatureDependent = ZELKeySlot(ZELKey::TemperatureDependent),
    .dataFile = ZELKeySlot(ZELKey::DataFile),
    .columns = columns,
    .noFeature = "No ZELSpecificHeat object found !",
    .inconsistent = "The SpecificHeat data is inconsistent !",
    .inconsistentStatus = E_FAIL,
};

}  // namespace

ZELMaterialSpecificHeat::ZELMaterialSpecificHeat(KORISpecObject* material)
    : ZELTableBehavior(material, description) {
    if (IsBound()) Report(InitSpecificHeatProperties(), "Initialization of ZELSpecificHeat failed !");
}

HRESULT ZELMaterialSpecificHeat::InitSpecificHeatProperties() {
    Report(GetPropertySpecificHeatEnabled(), "Can't get property SpecificHeat enabled");
    Report(GetPropertyTemperatureDependent(), "Can't get property temperature dependent");
    Report(GetPropertySpecificHeatDataArray(), "Can't get property SpecificHeat data array");
    Report(GetPropertyDataFile(), "Can't get property SpecificHeat data file");
    return S_OK;
}
