#pragma once

#include "ZELMaterialModel/include/ZELGasketElasticBehavior.h"

/// Elastic membrane behavior of a gasket: rows of [Young's modulus, Poisson's ratio, temperature], always
/// three columns, stored unconverted (Pa, -, K).
///
/// Every operation answers S_OK or E_FAIL and reads or writes the store at once; a getter leaves its argument
/// as it is on failure. Copies: see ZELGasketBehavior.
class KOR_EXPORT ZELGasketMembraneElasticBehavior final : public ZELGasketElasticBehavior {
public:
    explicit ZELGasketMembraneElasticBehavior(KORISpecObject* material);  ///< null is reported and tolerated

    HRESULT GetGasketMembraneElasticFlag(unsigned char& enabled) { return GetFlag(enabled); }
    HRESULT SetGasketMembraneElasticFlag(const unsigned char& enabled) { return SetFlag(enabled); }
    HRESULT GetGasketMembraneElasticDataFile(KORUnicodeString& name) { return GetDataFile(name); }
    HRESULT SetGasketMembraneElasticDataFile(const KORUnicodeString& name) { return SetDataFile(name); }
    HRESULT GetGasketMembraneElasticTempDepFlag(unsigned char& dependent) {
        return GetTempDepFlag(dependent);
    }
    HRESULT SetGasketMembraneElasticTempDepFlag(const unsigned char& dependent) {
        return SetTempDepFlag(dependent);
    }

    /// Appends to the caller's table; E_FAIL when a column was never valued or the columns differ in length.
    HRESULT GetGasketMembraneElasticDataArray(ZELCftArrayZELCftArrayDouble& rows) {
        return GetDataArray(rows);
    }

    /// E_FAIL when a Poisson's ratio does not lie strictly between -1 and 0.5. The table is stored all the
    /// same: the check comes after the write. A ratio that is not a number passes.
    HRESULT SetGasketMembraneElasticDataArray(const ZELCftArrayZELCftArrayDouble& rows);
};
