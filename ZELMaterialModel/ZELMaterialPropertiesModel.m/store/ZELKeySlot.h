#pragma once

#include "framework/KORUnicodeString.h"
#include "interfaces/KORISpecAttrAccess.h"

/// The place where a class keeps the key of one attribute, resolved on whichever feature is touched first and
/// then used for good with every feature of that type. There is one slot per class and attribute name, shared
/// by getter and setter. A miss is not remembered: the next call tries again.
class ZELKeySlot {
public:
    /// `name` is one of the named constants and outlives the slot.
    explicit constexpr ZELKeySlot(const KORUnicodeString& name) : name_(&name) {}

    /// The key, or null when the feature at hand lacks the attribute and no feature before it had it.
    KORISpecAttrKey* Resolve(KORISpecAttrAccess& access) {
        if (!key_) key_ = access.GetAttrKey(name_->c_str());
        return key_;
    }

private:
    const KORUnicodeString* name_;
    KORISpecAttrKey* key_ = nullptr;
};
