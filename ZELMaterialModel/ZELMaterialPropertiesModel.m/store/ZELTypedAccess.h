#pragma once

#include <memory>

#include "interfaces/KORISpecAttrAccess.h"

// The kinds of attribute that the module uses, one overload each: what an operation reads or writes is chosen
// by the type of its value.

inline void ZELRead(KORISpecAttrAccess& access, KORISpecAttrKey* key, unsigned char& flag) {
    flag = access.GetBoolean(key, 0) ? 1 : 0;
}
inline void ZELRead(KORISpecAttrAccess& access, KORISpecAttrKey* key, int& value) {
    value = access.GetInteger(key, 0);
}
inline void ZELRead(KORISpecAttrAccess& access, KORISpecAttrKey* key, double& value) {
    value = access.GetDouble(key, 0);
}
inline void ZELRead(KORISpecAttrAccess& access, KORISpecAttrKey* key, KORUnicodeString& text) {
    text = access.GetString(key, 0);
}
/// Null: the list was never valued.
inline void ZELRead(KORISpecAttrAccess& access, KORISpecAttrKey* key,
                    std::unique_ptr<KORRawColldouble>& list) {
    list.reset(access.GetListOfDouble(key));
}
/// The referenced object, which need not be a feature; empty when none is stored.
inline void ZELRead(KORISpecAttrAccess& access, KORISpecAttrKey* key, KORBaseUnknown_var& component) {
    component = KORBaseUnknown_var::Adopt(access.GetComponent(key, 0));
}

/// The store keeps 0 or 1, whatever the flag's byte is.
inline void ZELWrite(KORISpecAttrAccess& access, KORISpecAttrKey* key, unsigned char flag) {
    access.SetBoolean(key, flag != 0, 0);
}
inline void ZELWrite(KORISpecAttrAccess& access, KORISpecAttrKey* key, int value) {
    access.SetInteger(key, value, 0);
}
inline void ZELWrite(KORISpecAttrAccess& access, KORISpecAttrKey* key, double value) {
    access.SetDouble(key, value, 0);
}
inline void ZELWrite(KORISpecAttrAccess& access, KORISpecAttrKey* key, const KORUnicodeString& text) {
    access.SetString(key, text, 0);
}
inline void ZELWrite(KORISpecAttrAccess& access, KORISpecAttrKey* key, const KORRawColldouble& list) {
    access.SetListOfDouble(key, list);
}
/// Replaces the referenced object; an empty handle clears the attribute.
inline void ZELWrite(KORISpecAttrAccess& access, KORISpecAttrKey* key, const KORBaseUnknown_var& component) {
    access.SetComponent(key, component.Get(), 0);
}
