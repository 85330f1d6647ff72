#pragma once

#include "framework/KORUnicodeString.h"
#include "interfaces/KORISpecAttrAccess.h"

/// The key of one attribute for the length of one operation: resolved when it is needed, given back at the
/// end. The hyperelastic and layup classes keep no keys between calls; who does uses ZELKeySlot.
class ZELKeyOnce {
public:
    /// `name` is one of the named constants and outlives the key.
    explicit ZELKeyOnce(const KORUnicodeString& name) : name_(name) {}
    ~ZELKeyOnce() {
        if (key_) key_->Release();
    }
    ZELKeyOnce(const ZELKeyOnce&) = delete;
    ZELKeyOnce& operator=(const ZELKeyOnce&) = delete;

    /// The key, or null when the feature at hand lacks the attribute. Called once.
    KORISpecAttrKey* Resolve(KORISpecAttrAccess& access) { return key_ = access.GetAttrKey(name_.c_str()); }

private:
    const KORUnicodeString& name_;
    KORISpecAttrKey* key_ = nullptr;
};
