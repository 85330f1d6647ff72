#pragma once

#include "ZELMaterialModel/include/ZELTableBehavior.h"

/// Isotropic thermal conductivity of a material: rows of [conductivity] or, when temperature dependent,
/// [conductivity, temperature], stored unconverted (W/(m K), K).
class KOR_EXPORT ZELMaterialConductivity final : public ZELTableBehavior {
public:
    explicit ZELMaterialConductivity(KORISpecObject* material);  ///< null is reported and tolerated

    const unsigned char& GetConductivityEnabled() const { return Enabled(); }
    ZELCftArrayZELCftArrayDouble GetConductivityDataArray() {
        return Table();
    }  ///< a copy; never touches the store

    HRESULT SetConductivityEnabled(const unsigned char& enabled) { return StoreEnabled(enabled); }
    HRESULT SetConductivityDataArray(const ZELCftArrayZELCftArrayDouble& rows) { return StoreTable(rows); }

    HRESULT GetPropertyConductivityEnabled() { return ReadEnabled(); }
    HRESULT SetPropertyConductivityEnabled() { return WriteEnabled(); }
    HRESULT GetPropertyConductivityDataArray() {
        return ReadTable();
    }  ///< E_FAIL: inconsistent, the rows before it kept
    HRESULT SetPropertyConductivityDataArray() { return WriteTable(); }

    HRESULT InitConductivityProperties();  ///< reads everything, reports what fails and goes on; always S_OK
};
