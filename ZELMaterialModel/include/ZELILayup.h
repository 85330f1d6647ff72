#pragma once

#include "interfaces/KORISpecObject.h"

inline const KORIID IID_ZELILayup = KORName::Intern("ZELILayup");

/// A composite layup, on features of late type "ZELLayupLT": its layers in stacking order, position 1 first.
/// Which face of the shell that order starts from is the caller's convention; nothing here knows it.
class ZELILayup : public KORInterface<IID_ZELILayup> {
public:
    /// Replaces the layers: empties the stored list, then appends one after the other. Empty handles are
    /// stored as they come. E_FAIL, and the list as it was, when the feature offers no attribute access or
    /// lacks the list. Nothing is rolled back: what interrupts the writing leaves the list empty or refilled
    /// in part.
    virtual HRESULT SetLayers(const KORListValKORISpecObject_var& layers) = 0;

    /// Appends the stored layers to the caller's list; what is stored empty, or is no feature, is skipped.
    /// E_FAIL as for SetLayers, and the caller's list is as it was.
    virtual HRESULT GetLayers(KORListValKORISpecObject_var& layers) = 0;

    /// False when a composite shell section of the layup's first analysis set references this layup, true
    /// otherwise. Sections that come after one without ZELIShellSection are not looked at.
    virtual bool IsUnused() = 0;

protected:
    ~ZELILayup() = default;
};

using ZELILayup_var = KORVar<ZELILayup>;
