#include "ZELMaterialModel/include/ZELTemperatureDependentProperties.h"

ZELTemperatureDependentProperties::~ZELTemperatureDependentProperties() = default;

HRESULT ZELTemperatureDependentProperties::GetPropertyDataFile() {
    return E_FAIL;
}

HRESULT ZELTemperatureDependentProperties::SetPropertyDataFile() {
    return E_FAIL;
}

HRESULT ZELTemperatureDependentProperties::GetPropertyTemperatureDependent() {
    return E_FAIL;
}

HRESULT ZELTemperatureDependentProperties::SetPropertyTemperatureDependent() {
    return E_FAIL;
}

HRESULT ZELTemperatureDependentProperties::SetTemperatureDependent(const unsigned char& dependent) {
    TemperatureDependent = dependent;
    return SetPropertyTemperatureDependent();
}

HRESULT ZELTemperatureDependentProperties::SetDataFile(const KORUnicodeString& name) {
    DataFile = name;
    return SetPropertyDataFile();
}
