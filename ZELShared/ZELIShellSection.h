#pragma once

#include "interfaces/KORISpecObject.h"

inline const KORIID IID_ZELIShellSection = KORName::Intern("ZELIShellSection");

/// A shell section of an analysis model, on features of late type "ZELShellSectionEnhLT".
class ZELIShellSection : public KORInterface<IID_ZELIShellSection> {
public:
    /// 0: homogeneous; 1: composite, made of the referenced layup. Other values belong to the section's
    /// dialogs.
    virtual int GetSectionType() = 0;

    /// The layup that the section references with one reference for the caller; null when it references none.
    virtual KORISpecObject* GetLayup() = 0;

protected:
    ~ZELIShellSection() = default;
};

using ZELIShellSection_var = KORVar<ZELIShellSection>;

constexpr int kZELCompositeSection = 1;
