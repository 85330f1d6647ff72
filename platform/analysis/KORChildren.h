#pragma once

#include "platform/store/KORFeature.h"

/// The children of a feature of an analysis model, in order: the model's own, or a set's. They lie in its
/// list attribute "Children". A feature without that attribute has none.
class KORChildren {
public:
    explicit KORChildren(KORFeature& parent) : parent_(parent) {}

    KORListValKORISpecObject_var All() const;
    bool Contain(const KORISpecObject_var& child) const;

    bool CanBe() const;  ///< the parent has that attribute
    void Append(KORISpecObject* child);
    void Remove(const KORISpecObject_var& child);  ///< if it is one of them; other entries stay, of any kind

    /// Those of a late type, in order.
    KORListValKORISpecObject_var OfType(const KORUnicodeString& lateType) const;

private:
    KORFeature& parent_;
};
