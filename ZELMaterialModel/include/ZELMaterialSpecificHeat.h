#pragma once

#include "ZELMaterialModel/include/ZELTableBehavior.h"

/// Specific heat of a material: rows of [specific heat] or, when temperature dependent, [specific heat,
/// temperature], stored unconverted (J/(kg K), K).
class KOR_EXPORT ZELMaterialSpecificHeat final : public ZELTableBehavior {
public:
    explicit ZELMaterialSpecificHeat(KORISpecObject* material);  ///< null is reported and tolerated

    const unsigned char& GetSpecificHeatEnabled() const { return Enabled(); }
    ZELCftArrayZELCftArrayDouble GetSpecificHeatDataArray() {
        return Table();
    }  ///< a copy; never touches the store

    HRESULT SetSpecificHeatEnabled(const unsigned char& enabled) { return StoreEnabled(enabled); }
    HRESULT SetSpecificHeatDataArray(const ZELCftArrayZELCftArrayDouble& rows) { return StoreTable(rows); }

    HRESULT GetPropertySpecificHeatEnabled() { return ReadEnabled(); }
    HRESULT SetPropertySpecificHeatEnabled() { return WriteEnabled(); }
    HRESULT GetPropertySpecificHeatDataArray() {
        return ReadTable();
    }  ///< E_FAIL: inconsistent, the rows before it kept
    HRESULT SetPropertySpecificHeatDataArray() { return WriteTable(); }

    HRESULT InitSpecificHeatProperties();  ///< reads everything, reports what fails and goes on; always S_OK
};
