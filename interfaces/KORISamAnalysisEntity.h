#pragma once

#include "framework/KORBaseUnknown.h"
#include "framework/KORListVal.h"

inline const KORIID IID_KORISamAnalysisEntity = KORName::Intern("KORISamAnalysisEntity");

using KORListValKORBaseUnknown_var = KORListVal<KORBaseUnknown_var>;

/// A feature that takes part in an analysis model, such as a layup.
class KORISamAnalysisEntity : public KORInterface<IID_KORISamAnalysisEntity> {
public:
    /// The analysis sets that list this entity itself, in the order in which the analysis model leads to
    /// them; none when it stands outside every set.
    virtual KORListValKORBaseUnknown_var GetParentSets() = 0;

protected:
    ~KORISamAnalysisEntity() = default;
};

using KORISamAnalysisEntity_var = KORVar<KORISamAnalysisEntity>;
