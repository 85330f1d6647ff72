#pragma once

#include "ZELShared/ZELCftArrayZELCftArrayDouble.h"
#include "framework/KORUnicodeString.h"
#include "framework/KORVar.h"

inline const KORIID IID_ZELIHyperelasticMaterialModel = KORName::Intern("ZELIHyperelasticMaterialModel");

/// The data of a hyperelastic material model, on features of late type "ZELHyperelasticMaterialModelLT": the
/// order of the strain-energy potential and the rows of coefficients, one feature per row. Rows may differ in
/// length. What the columns mean is fixed by the model that the hyperelastic behavior names, not here.
///
/// Every failure is E_FAIL; the argument of a getter is untouched then, but for GetPropertyData. That undo
/// has taken the model's feature away is a failure of the setters.
class ZELIHyperelasticMaterialModel : public KORInterface<IID_ZELIHyperelasticMaterialModel> {
public:
    virtual HRESULT GetStrainEnergyPotentialOrder(int& order) = 0;
    virtual HRESULT SetStrainEnergyPotentialOrder(int order) = 0;  ///< no range check
    virtual HRESULT GetPropertyTemperatureDependent(unsigned char& dependent) = 0;
    virtual HRESULT SetPropertyTemperatureDependent(unsigned char dependent) = 0;
    virtual HRESULT GetPropertyDataFile(KORUnicodeString& name) = 0;
    virtual HRESULT SetPropertyDataFile(const KORUnicodeString& name) = 0;

    /// Appends the stored rows to the caller's table, which is not emptied first. A failure in the middle
    /// leaves the rows read so far.
    virtual HRESULT GetPropertyData(ZELCftArrayZELCftArrayDouble& rows) = 0;

    /// Replaces the stored rows. A failure in the middle leaves the rows stored so far. Row features are
    /// reused from one call to the next on the same object; those no longer listed stay in the document.
    virtual HRESULT SetPropertyData(const ZELCftArrayZELCftArrayDouble& rows) = 0;

protected:
    ~ZELIHyperelasticMaterialModel() = default;
};

using ZELIHyperelasticMaterialModel_var = KORVar<ZELIHyperelasticMaterialModel>;
