#pragma once

#include "ZELMaterialModel/include/ZELModuleObject.h"
#include "ZELMaterialModel/include/ZELRememberedFeature.h"
#include "ZELShared/ZELCftArrayZELCftArrayDouble.h"
#include "interfaces/KORISpecObject.h"

/// A material law that the analyst supplies as a routine: what the routine is given. It keeps no value in
/// memory: every operation goes to the store.
///
/// E_FAIL when there is no feature to work on or it lacks the attribute, E_NOINTERFACE when it offers no
/// attribute access. The argument of a getter is untouched then. For the setters, a feature that undo took
/// away is none.
class KOR_EXPORT ZELUserMaterial : private ZELModuleObject {
public:
    explicit ZELUserMaterial(KORISpecObject* material);  ///< null is tolerated; nothing is reported
    virtual ~ZELUserMaterial();

    HRESULT GetUserMaterialEnabled(unsigned char& enabled);  ///< on the material itself
    HRESULT SetUserMaterialEnabled(unsigned char enabled);

    /// The kind of routine, "MECHANICAL" or "THERMAL"; any text is stored.
    HRESULT GetUserMaterialType(KORUnicodeString& type);
    HRESULT SetUserMaterialType(const KORUnicodeString& type);

    HRESULT GetUnSymmMatrixFlag(
        unsigned char& unsymmetric);  ///< the routine's stiffness matrix is unsymmetric
    HRESULT SetUnSymmMatrixFlag(unsigned char unsymmetric);

    HRESULT GetUserMaterialDependentVar(int& count);  ///< number of solution-dependent state variables
    HRESULT SetUserMaterialDependentVar(int count);   ///< no range check

    HRESULT GetPropertyDataFile(KORUnicodeString& name);
    HRESULT SetPropertyDataFile(const KORUnicodeString& name);

    /// The constants, one row of one column each. The caller's table is replaced; it is untouched, and the
    /// result S_OK, when no constants were ever stored.
    HRESULT GetUserMaterialDataArray(ZELCftArrayZELCftArrayDouble& rows);
    HRESULT SetUserMaterialDataArray(
        const ZELCftArrayZELCftArrayDouble& rows);  ///< the first column is stored

private:
    KORISpecObject_var material_;
    ZELRememberedFeature feature_;
};
