#pragma once

#include <utility>
#include <vector>

#include "interfaces/KORISpecObject.h"

/// The entries of a list-of-components attribute, numbered from 1. An entry may be null, or an object that is
/// no spec object. Copies share their entries until one of them is written to, and so does the list of
/// features that is handed out.
class KORComponentList {
public:
    /// Appends a component, by its main object; null is an empty entry.
    void Append(KORBaseUnknown* component);

    /// The component at a position counted from 1; null for an empty entry and outside 1..Size().
    KORBaseUnknown_var At(int position) const;

    int Size() const { return features_.Size(); }

    /// All entries as features: an empty handle where the entry is null or no spec object.
    const KORListValKORISpecObject_var& Features() const { return features_; }

    bool SameAs(const KORComponentList& other) const;  ///< the same components in the same order

private:
    KORListValKORISpecObject_var features_;
    std::vector<std::pair<int, KORBaseUnknown_var>> others_;  ///< by position: what is no spec object
};
