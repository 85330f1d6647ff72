#pragma once

#include "interfaces/KORISpecObject.h"

inline const KORIID IID_ZELILayup = KORName::Intern("ZELILayup");

/// A composite layup, on features of late type "ZELLayupLT": its layers in stacking order, the first at the
/// bottom.
class ZELILayup : public KORInterface<IID_ZELILayup> {
public:
    /// Replaces the layers. Empty handles are stored as they come. E_FAIL when the feature offers no
    /// attribute access or lacks the list.
    virtual HRESULT SetLayers(const KORListValKORISpecObject_var& layers) = 0;

    /// Appends the stored layers to the caller's list; what is stored empty is skipped.
    virtual HRESULT GetLayers(KORListValKORISpecObject_var& layers) = 0;

    /// False when a composite shell section of the layup's analysis set references this layup, true
    /// otherwise.
    virtual bool IsUnused() = 0;

protected:
    ~ZELILayup() = default;
};

using ZELILayup_var = KORVar<ZELILayup>;
