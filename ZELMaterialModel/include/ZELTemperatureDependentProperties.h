#pragma once

#include "ZELMaterialModel/include/ZELModuleObject.h"
#include "framework/KORExport.h"
#include "framework/KORStatus.h"
#include "framework/KORUnicodeString.h"

/// Base of every behavior that is a table: whether the data depend on temperature, and the name of an
/// external data file. It holds these two in memory; the behaviors override the four store operations to move
/// them to and from their own feature. It knows no table and no feature.
class KOR_EXPORT ZELTemperatureDependentProperties : private ZELModuleObject {
public:
    ZELTemperatureDependentProperties() = default;
    ZELTemperatureDependentProperties(const ZELTemperatureDependentProperties&) = default;
    ZELTemperatureDependentProperties& operator=(const ZELTemperatureDependentProperties&) = default;
    virtual ~ZELTemperatureDependentProperties();

    /// Between memory and store. E_FAIL where no behavior overrides them.
    virtual HRESULT GetPropertyDataFile();
    virtual HRESULT SetPropertyDataFile();
    virtual HRESULT GetPropertyTemperatureDependent();
    virtual HRESULT SetPropertyTemperatureDependent();

    const unsigned char& GetTemperatureDependent() const { return TemperatureDependent; }
    const KORUnicodeString& GetDataFile() const { return DataFile; }

    /// Memory, then store: the result is the store operation's, and memory keeps the value when that fails.
    HRESULT SetTemperatureDependent(const unsigned char& dependent);
    HRESULT SetDataFile(const KORUnicodeString& name);

protected:
    unsigned char TemperatureDependent = 0;  ///< 0 or 1; 0 before the first read from the store
    KORUnicodeString DataFile;
};
