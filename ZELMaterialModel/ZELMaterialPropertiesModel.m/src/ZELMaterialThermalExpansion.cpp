#include "ZELMaterialModel/include/ZELMaterialThermalExpansion.h"

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialConstants.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELTableDescription.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/store/ZELAttribute.h"

namespace {

ZELKeySlot columns[] = {ZELKeySlot(ZELKey::ThermalExpansionData), ZELKeySlot(ZELKey::TemperatureData)};

ZELTableDescription description{
    .component = ZELKey::ZELThermalExpansion,
    .enabled = ZELKeySlot(ZELKey::ZELThermalExpansionFlag),
    .temperatureDependent = ZELKeySlot(ZELKey::TemperatureDependent),
    .dataFile = ZELKeySlot(ZELKey::DataFile),
    .columns = columns,
    .noFeature = "No ZELThermalExpansion object found !",
    .inconsistent = "The ThermalExpansion data is inconsistent !",
    .inconsistentStatus = E_FAIL,
};

ZELKeySlot referenceTemperature(ZELKey::ReferenceTemperature);

}  // namespace

ZELMaterialThermalExpansion::ZELMaterialThermalExpansion(KORISpecObject* material)
    : ZELTableBehavior(material, description) {
    if (IsBound()) Report(InitThermalExpansionProperties(), "Initialization of ZELThermalExpansion failed !");
}

HRESULT ZELMaterialThermalExpansion::InitThermalExpansionProperties() {
    Report(GetPropertyThermalExpansionEnabled(), "Can't get property thermal expansion enabled");
    Report(GetPropertyTemperatureDependent(), "Can't get property temperature dependent");
    Report(GetPropertyThermalExpansionDataArray(), "Can't get property ThermalExpansion data array");
    Report(GetPropertyReferenceTemperature(), "Can't get property ReferenceTemperature");
    Report(GetPropertyDataFile(), "Can't get property ThermalExpansion data file");
    return S_OK;
}

HRESULT ZELMaterialThermalExpansion::SetReferenceTemperature(const double& temperature) {
    ReferenceTemperature = temperature;
    return SetPropertyReferenceTemperature();
}

HRESULT ZELMaterialThermalExpansion::GetPropertyReferenceTemperature() {
    return ZELReadField(Feature(), referenceTemperature, ReferenceTemperature);
}

HRESULT ZELMaterialThermalExpansion::SetPropertyReferenceTemperature() {
    return ZELSetValue(FeatureForWriting(), referenceTemperature, ReferenceTemperature);
}
