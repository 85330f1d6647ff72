#pragma once

#include "ZELMaterialModel/include/ZELGasketElasticBehavior.h"

/// Elastic transverse shear of a gasket: rows of [shear stiffness, temperature], always two columns, stored
/// unconverted (Pa/m, K).
///
/// Every operation answers S_OK or E_FAIL and reads or writes the store at once; a getter leaves its argument
/// as it is on failure. Copies: see ZELGasketBehavior.
class KOR_EXPORT ZELGasketTransverseShearElasticBehavior final : public ZELGasketElasticBehavior {
public:
    explicit ZELGasketTransverseShearElasticBehavior(
        KORISpecObject* material);  ///< null is reported and tolerated

    HRESULT GetGasketTransverseShearElasticFlag(unsigned char& enabled) { return GetFlag(enabled); }
    HRESULT SetGasketTransverseShearElasticFlag(const unsigned char& enabled) { return SetFlag(enabled); }
    HRESULT GetGasketTransverseShearElasticDataFile(KORUnicodeString& name) { return GetDataFile(name); }
    HRESULT SetGasketTransverseShearElasticDataFile(const KORUnicodeString& name) {
        return SetDataFile(name);
    }
    HRESULT GetGasketTransverseShearElasticTempDepFlag(unsigned char& dependent) {
        return GetTempDepFlag(dependent);
    }
    HRESULT SetGasketTransverseShearElasticTempDepFlag(const unsigned char& dependent) {
        return SetTempDepFlag(dependent);
    }

    /// Appends to the caller's table; E_FAIL when a column was never valued or the columns differ in length.
    HRESULT GetGasketTransverseShearElasticDataArray(ZELCftArrayZELCftArrayDouble& rows) {
        return GetDataArray(rows);
    }

    /// While the behavior is enabled: E_FAIL, and nothing is stored, when a stiffness is 0 or less. While it
    /// is off, or that cannot be found out, anything is stored.
    HRESULT SetGasketTransverseShearElasticDataArray(const ZELCftArrayZELCftArrayDouble& rows);
};
