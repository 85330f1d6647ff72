#pragma once

#include "framework/KORVar.h"

inline const KORIID IID_KORISamUpgrade = KORName::Intern("KORISamUpgrade");

/// Brings a feature of an older document up to the current release. Both operations belong together: the
/// query finds out what the upgrade then does, on the same object, and is good for one upgrade.
class KORISamUpgrade : public KORInterface<IID_KORISamUpgrade> {
public:
    virtual bool IsUpgradeNeeded() = 0;
    virtual HRESULT Upgrade() = 0;  ///< S_OK, or the status of the first step that failed; nothing is undone

protected:
    ~KORISamUpgrade() = default;
};

using KORISamUpgrade_var = KORVar<KORISamUpgrade>;
