#pragma once

#include "interfaces/KORIVdxUnits.h"

/// A unit type as a dialog uses it: a parameter of that type from the platform's units service. It converts
/// nothing itself; the parameter's magnitude knows the current unit.
class ZELDlgUnit {
public:
    explicit ZELDlgUnit(const KORUnicodeString& unitType);

    /// The parameter with one reference for the caller; null when the platform has no units service or does
    /// not know the unit type.
    KORIVdxParameter* GetParameter() const { return KORIVdxParameter_var(parameter_).Detach(); }

private:
    KORIVdxParameter_var parameter_;
};
