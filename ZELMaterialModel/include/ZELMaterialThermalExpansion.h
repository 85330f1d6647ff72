#pragma once

#include "ZELMaterialModel/include/ZELTableBehavior.h"

/// Isotropic thermal expansion of a material: rows of [coefficient] or, when temperature dependent,
/// [coefficient, temperature], stored unconverted (1/K, K). The coefficients are the mean ones from the
/// reference temperature.
class KOR_EXPORT ZELMaterialThermalExpansion final : public ZELTableBehavior {
public:
    explicit ZELMaterialThermalExpansion(KORISpecObject* material);  ///< null is reported and tolerated

    const unsigned char& GetThermalExpansionEnabled() const { return Enabled(); }
    ZELCftArrayZELCftArrayDouble GetThermalExpansionDataArray() {
        return Table();
    }  ///< a copy; never touches the store

    HRESULT SetThermalExpansionEnabled(const unsigned char& enabled) { return StoreEnabled(enabled); }
    HRESULT SetThermalExpansionDataArray(const ZELCftArrayZELCftArrayDouble& rows) {
        return StoreTable(rows);
    }

    double GetReferenceTemperature() const { return ReferenceTemperature; }
    HRESULT SetReferenceTemperature(const double& temperature);  ///< memory, then store

    HRESULT GetPropertyThermalExpansionEnabled() { return ReadEnabled(); }
    HRESULT SetPropertyThermalExpansionEnabled() { return WriteEnabled(); }
    HRESULT GetPropertyThermalExpansionDataArray() {
        return ReadTable();
    }  ///< E_FAIL: inconsistent, the rows before it kept
    HRESULT SetPropertyThermalExpansionDataArray() { return WriteTable(); }
    HRESULT GetPropertyReferenceTemperature();
    HRESULT SetPropertyReferenceTemperature();

    HRESULT
    InitThermalExpansionProperties();  ///< reads everything, reports what fails and goes on; always S_OK

private:
    double ReferenceTemperature = 0.0;  ///< K
};
