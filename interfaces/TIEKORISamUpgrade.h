#pragma once

#include "framework/KORTie.h"
#include "interfaces/KORISamUpgrade.h"

/// Binding of KORISamUpgrade to an implementing class.
template <class Implementation>
class TIEKORISamUpgrade final : public KORTie<KORISamUpgrade, Implementation> {
public:
    using KORTie<KORISamUpgrade, Implementation>::KORTie;

    bool IsUpgradeNeeded() override { return this->Called(__func__)->IsUpgradeNeeded(); }
    HRESULT Upgrade() override { return this->Called(__func__)->Upgrade(); }
};
