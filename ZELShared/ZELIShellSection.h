#pragma once

#include "interfaces/KORISpecObject.h"

inline const KORIID IID_ZELIShellSection = KORName::Intern("ZELIShellSection");

/// A shell section of an analysis model, on features of late type "ZELShellSectionEnhLT".
class ZELIShellSection : public KORIUnknown {
    KORDeclareInterface(ZELIShellSection)

    /// 0: homogeneous; 1: composite, made of the referenced layup. Other values belong to the section's
    /// dialogs.
    virtual int GetSectionType() = 0;

    /// The layup that the section references with one reference for the caller; null when it references none.
    virtual KORISpecObject* GetLayup() = 0;
};

using ZELIShellSection_var = KORVar<ZELIShellSection>;

constexpr int kZELCompositeSection = 1;
