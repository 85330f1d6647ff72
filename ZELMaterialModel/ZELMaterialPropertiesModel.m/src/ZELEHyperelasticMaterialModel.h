#pragma once

#include "ZELMaterialModel/include/ZELModuleObject.h"
#include "ZELMaterialModel/include/ZELRememberedFeature.h"
#include "ZELShared/ZELCftArrayZELCftArrayDouble.h"
#include "framework/KORExport.h"
#include "interfaces/KORISpecObject.h"

/// Implements ZELIHyperelasticMaterialModel on "ZELHyperelasticMaterialModelLT" features: one row feature per
/// table row, listed in row order by the model feature.
///
/// The object remembers the row features of its last SetPropertyData and reuses them in the next; the memory
/// starts empty and is not stored, and a row that lies in no container any more is none of it. Nothing is
/// written to a model that undo took away, nor to its rows.
class KOR_EXPORT ZELEHyperelasticMaterialModel final : public KORBaseUnknown, private ZELModuleObject {
    KORDeclareClass

    ZELEHyperelasticMaterialModel();

    HRESULT GetStrainEnergyPotentialOrder(int& order);
    HRESULT SetStrainEnergyPotentialOrder(int order);
    HRESULT GetPropertyTemperatureDependent(unsigned char& dependent);
    HRESULT SetPropertyTemperatureDependent(unsigned char dependent);
    HRESULT GetPropertyDataFile(KORUnicodeString& name);
    HRESULT SetPropertyDataFile(const KORUnicodeString& name);
    HRESULT GetPropertyData(ZELCftArrayZELCftArrayDouble& rows);
    HRESULT SetPropertyData(const ZELCftArrayZELCftArrayDouble& rows);

private:
    /// A new, empty row feature in the model's container; E_FAIL and an empty handle when there comes none.
    HRESULT CreateHyperelasticRowDataFeature(KORISpecObject_var& row);

    void ForgetLostRows();
    void FitRows(int count);

    ZELRememberedFeature feature_;
    KORListValKORISpecObject_var rows_;

    friend class ZELTestAccess;
};
