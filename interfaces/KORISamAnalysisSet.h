#pragma once

#include "interfaces/KORISpecObject.h"

inline const KORIID IID_KORISamAnalysisSet = KORName::Intern("KORISamAnalysisSet");

/// A set of an analysis model: an ordered collection of entities, such as the property set.
class KORISamAnalysisSet : public KORInterface<IID_KORISamAnalysisSet> {
public:
    virtual void AddChild(
        const KORISpecObject_var& child) = 0;  ///< at the end; the set holds it from then on

    /// The set's features of one late type, in order.
    virtual KORListValKORISpecObject_var GetFeatures(const KORUnicodeString& lateType) = 0;

protected:
    ~KORISamAnalysisSet() = default;
};

using KORISamAnalysisSet_var = KORVar<KORISamAnalysisSet>;
