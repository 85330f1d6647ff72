#pragma once

#include <memory>
#include <ostream>

#include "ZELMaterialModel/include/ZELTemperatureDependentProperties.h"
#include "interfaces/KORISpecObject.h"
#include "tests/ZELMaterialModel/ZELRows.h"

/// One of the four single-table behaviors, whose operations differ in their names only.
class ZELSingleTable {
public:
    virtual ~ZELSingleTable() = default;

    virtual ZELTemperatureDependentProperties& Properties() = 0;
    virtual int GetEnabled() const = 0;
    virtual ZELRows GetDataArray() = 0;
    virtual HRESULT SetEnabled(unsigned char enabled) = 0;
    virtual HRESULT SetDataArray(const ZELRows& rows) = 0;
    virtual HRESULT GetPropertyEnabled() = 0;
    virtual HRESULT SetPropertyEnabled() = 0;
    virtual HRESULT GetPropertyDataArray() = 0;
    virtual HRESULT SetPropertyDataArray() = 0;
    virtual HRESULT InitProperties() = 0;
};

/// How one of the four is made, where its data lie, and what it writes to the diagnostic output.
struct ZELSingleTableCase {
    const char* thing;
    std::unique_ptr<ZELSingleTable> (*make)(KORISpecObject* material);

    const char* component;
    const char* flag;
    const char* lateType;
    const char* values;

    const char* noFeature;
    const char* cannotReadEnabled;
    const char* cannotReadTable;
    const char* cannotReadReferenceTemperature;  ///< null where there is none
    const char* cannotReadDataFile;
    const char* inconsistent;

    friend void PrintTo(const ZELSingleTableCase& behavior, std::ostream* out) { *out << behavior.thing; }
};

std::vector<ZELSingleTableCase> ZELSingleTableCases();
