#pragma once

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/store/ZELKeyOnce.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/store/ZELKeySlot.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/store/ZELTypedAccess.h"
#include "framework/KORStatus.h"

/// The one sequence by which an attribute of a feature is read or written: attribute access, key, operation,
/// release. `key` is a ZELKeySlot or a ZELKeyOnce. E_NOINTERFACE when the feature is null or offers no
/// attribute access, E_FAIL when it lacks the attribute; the operation is not run then.
template <class Key, class Operation>
HRESULT ZELUseAttribute(KORISpecObject* feature, Key&& key, Operation operation) {
    const auto access = KORISpecAttrAccess_var::Of(feature);
    if (!access) return E_NOINTERFACE;
    KORISpecAttrKey* resolved = key.Resolve(*access);
    if (!resolved) return E_FAIL;
    operation(*access, resolved);
    return S_OK;
}

/// Reads a value; it is left as it is on every failure.
template <class Key, class Value>
HRESULT ZELGetValue(KORISpecObject* feature, Key&& key, Value& value) {
    return ZELUseAttribute(feature, key, [&value](KORISpecAttrAccess& access, KORISpecAttrKey* resolved) {
        ZELRead(access, resolved, value);
    });
}

/// Reads a flag or number into a field of a behavior: a missing attribute makes the field zero, a feature
/// without attribute access leaves it as it is.
template <class Key, class Field>
HRESULT ZELReadField(KORISpecObject* feature, Key&& key, Field& field) {
    const HRESULT status = ZELGetValue(feature, key, field);
    if (status == E_FAIL) field = Field();
    return status;
}

template <class Key, class Value>
HRESULT ZELSetValue(KORISpecObject* feature, Key&& key, const Value& value) {
    return ZELUseAttribute(feature, key, [&value](KORISpecAttrAccess& access, KORISpecAttrKey* resolved) {
        ZELWrite(access, resolved, value);
    });
}

/// For the classes that answer E_FAIL whatever the failure was.
inline HRESULT ZELFailOnly(HRESULT status) {
    return FAILED(status) ? E_FAIL : status;
}
