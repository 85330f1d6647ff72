#pragma once

#include "ZELMaterialModel/include/ZELGasketBehavior.h"

struct ZELGasketElasticDescription;

/// What the two elastic gasket behaviors share, member for member: a feature under the material with an
/// enabled flag, a data-file name, a temperature flag and the columns of a table. What makes a table
/// acceptable, and whether that is found out before or after it is stored, stands in the behavior's own
/// class. Copies: see ZELGasketBehavior.
class KOR_EXPORT ZELGasketElasticBehavior : public ZELGasketBehavior {
protected:
    /// A null material and one without attribute access are reported; what is missing below it ends the
    /// binding silently, and what was not reached answers E_FAIL.
    ZELGasketElasticBehavior(KORISpecObject* material, const ZELGasketElasticDescription& description);

    HRESULT GetFlag(unsigned char& enabled);
    HRESULT SetFlag(const unsigned char& enabled);
    HRESULT GetDataFile(KORUnicodeString& name);
    HRESULT SetDataFile(const KORUnicodeString& name);
    HRESULT GetTempDepFlag(unsigned char& dependent);
    HRESULT SetTempDepFlag(const unsigned char& dependent);
    HRESULT GetDataArray(ZELCftArrayZELCftArrayDouble& rows);  ///< appends
    HRESULT SetDataArray(const ZELCftArrayZELCftArrayDouble& rows);

private:
    void Bind(KORISpecAttrAccess& material);
    std::vector<KORISpecAttrKey*> Columns() const;

    const ZELGasketElasticDescription* description_;
    ZELRememberedFeature feature_;
    KORISpecAttrAccess_var access_;
};
