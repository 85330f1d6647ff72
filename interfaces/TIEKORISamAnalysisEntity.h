#pragma once

#include "framework/KORTie.h"
#include "interfaces/KORISamAnalysisEntity.h"

/// Binding of KORISamAnalysisEntity to an implementing class.
template <class Implementation>
class TIEKORISamAnalysisEntity final : public KORTie<KORISamAnalysisEntity, Implementation> {
public:
    using KORTie<KORISamAnalysisEntity, Implementation>::KORTie;

    KORListValKORBaseUnknown_var GetParentSets() override { return this->Called(__func__)->GetParentSets(); }
};
