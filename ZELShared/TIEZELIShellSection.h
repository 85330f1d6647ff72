#pragma once

#include "ZELShared/ZELIShellSection.h"
#include "framework/KORTie.h"

/// Binding of ZELIShellSection to an implementing class.
template <class Implementation>
class TIEZELIShellSection final : public KORTie<ZELIShellSection, Implementation> {
public:
    using KORTie<ZELIShellSection, Implementation>::KORTie;

    int GetSectionType() override { return this->Called(__func__)->GetSectionType(); }
    KORISpecObject* GetLayup() override { return this->Called(__func__)->GetLayup(); }
};
