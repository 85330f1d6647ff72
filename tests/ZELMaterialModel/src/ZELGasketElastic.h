#pragma once

#include <memory>
#include <ostream>

#include "tests/ZELMaterialModel/ZELRows.h"
#include "tests/ZELMaterialModel/src/ZELGasketKeys.h"

/// One of the two elastic gasket behaviors, whose operations differ in their names only.
class ZELGasketElastic {
public:
    virtual ~ZELGasketElastic() = default;

    virtual HRESULT GetFlag(unsigned char& enabled) = 0;
    virtual HRESULT SetFlag(unsigned char enabled) = 0;
    virtual HRESULT GetDataFile(KORUnicodeString& name) = 0;
    virtual HRESULT SetDataFile(const KORUnicodeString& name) = 0;
    virtual HRESULT GetTempDepFlag(unsigned char& dependent) = 0;
    virtual HRESULT SetTempDepFlag(unsigned char dependent) = 0;
    virtual HRESULT GetDataArray(ZELCftArrayZELCftArrayDouble& rows) = 0;
    virtual HRESULT SetDataArray(const ZELRows& rows) = 0;

    /// A copy, made by copying or by assigning to one without a material.
    virtual std::unique_ptr<ZELGasketElastic> Copy() const = 0;
    virtual std::unique_ptr<ZELGasketElastic> Assigned() const = 0;
};

/// How one of the two is made and where its data lie.
struct ZELGasketElasticCase {
    const char* thing;
    std::unique_ptr<ZELGasketElastic> (*make)(KORISpecObject* material);

    const char* component;
    KORISpecObject_var ZELFullMaterialTree::*feature;
    ZELGasketKeyList keys;  ///< data file, temperature flag, columns, and the enabled flag last
    const char* noFeature;
    ZELRows rows;  ///< acceptable, with a column for each list

    friend void PrintTo(const ZELGasketElasticCase& behavior, std::ostream* out) { *out << behavior.thing; }
};

std::vector<ZELGasketElasticCase> ZELGasketElasticCases();
