#pragma once

#include "ZELMaterialModel/include/ZELTableBehavior.h"

/// Mass density of a material: rows of [density] or, when temperature dependent, [density, temperature],
/// stored unconverted (kg/m3, K). Every row is kept, also when the behavior does not depend on temperature.
class KOR_EXPORT ZELMaterialDensity final : public ZELTableBehavior {
public:
    explicit ZELMaterialDensity(KORISpecObject* material);  ///< null is reported and tolerated

    const unsigned char& GetDensityEnabled() const { return Enabled(); }
    ZELCftArrayZELCftArrayDouble GetDensityDataArray() {
        return Table();
    }  ///< a copy; never touches the store

    HRESULT SetDensityEnabled(const unsigned char& enabled) { return StoreEnabled(enabled); }
    HRESULT SetDensityDataArray(const ZELCftArrayZELCftArrayDouble& rows) { return StoreTable(rows); }

    HRESULT GetPropertyDensityEnabled() { return ReadEnabled(); }
    HRESULT SetPropertyDensityEnabled() { return WriteEnabled(); }
    HRESULT GetPropertyDensityDataArray() {
        return ReadTable();
    }  ///< E_FAIL: inconsistent, the rows before it kept
    HRESULT SetPropertyDensityDataArray() { return WriteTable(); }

    HRESULT InitDensityProperties();  ///< reads everything, reports what fails and goes on; always S_OK
};
