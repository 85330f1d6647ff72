#pragma once

#include "framework/KORUnicodeString.h"
#include "framework/KORVar.h"

inline const KORIID IID_KORIVdxUnit = KORName::Intern("KORIVdxUnit");
inline const KORIID IID_KORIVdxMagnitude = KORName::Intern("KORIVdxMagnitude");
inline const KORIID IID_KORIVdxParameter = KORName::Intern("KORIVdxParameter");
inline const KORIID IID_KORIVdxUnits = KORName::Intern("KORIVdxUnits");

/// One unit of a magnitude, such as MPa.
class KORIVdxUnit : public KORInterface<IID_KORIVdxUnit> {
public:
    virtual KORUnicodeString GetSymbol() = 0;

    /// A value given in this unit, in the stored (SI) unit of the magnitude: 1.0 MPa converts to 1e6.
    virtual double ConvertToStored(double value) = 0;

protected:
    ~KORIVdxUnit() = default;
};

/// A physical quantity, such as pressure, and the unit in which the user currently sees it.
class KORIVdxMagnitude : public KORInterface<IID_KORIVdxMagnitude> {
public:
    virtual KORUnicodeString GetName() = 0;     ///< the unit-type keyword, such as "PRESSURE"
    virtual KORIVdxUnit* GetCurrentUnit() = 0;  ///< one reference for the caller; null when none is set

protected:
    ~KORIVdxMagnitude() = default;
};

/// A parameter: a value of some magnitude.
class KORIVdxParameter : public KORInterface<IID_KORIVdxParameter> {
public:
    virtual KORIVdxMagnitude* GetMagnitude() = 0;  ///< one reference for the caller; null when it has
                                                   ///< none

protected:
    ~KORIVdxParameter() = default;
};

/// The units service of a platform.
class KORIVdxUnits : public KORInterface<IID_KORIVdxUnits> {
public:
    /// A new parameter of that unit type with one reference for the caller; null for an unknown type.
    [[nodiscard]] virtual KORIVdxParameter* CreateParameter(const KORUnicodeString& unitType) = 0;

protected:
    ~KORIVdxUnits() = default;
};

using KORIVdxUnit_var = KORVar<KORIVdxUnit>;
using KORIVdxMagnitude_var = KORVar<KORIVdxMagnitude>;
using KORIVdxParameter_var = KORVar<KORIVdxParameter>;
using KORIVdxUnits_var = KORVar<KORIVdxUnits>;
