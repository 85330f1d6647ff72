#pragma once

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/store/ZELKeySlot.h"
#include "framework/KORStatus.h"

/// The one sequence by which an attribute of a feature is read or written: attribute access, key, operation,
/// release. E_NOINTERFACE when the feature is null or offers no attribute access, E_FAIL when it lacks the
/// attribute.
template <class Operation>
HRESULT ZELUseAttribute(KORISpecObject* feature, ZELKeySlot& slot, Operation operation) {
    const auto access = KORISpecAttrAccess_var::Of(feature);
    if (!access) return E_NOINTERFACE;
    KORISpecAttrKey* key = slot.Resolve(*access);
    if (!key) return E_FAIL;
    operation(*access, key);
    return S_OK;
}

/// Reads into a field of a behavior: a missing attribute makes the field zero, a feature without attribute
/// access leaves it as it is.
HRESULT ZELReadFlag(KORISpecObject* feature, ZELKeySlot& slot, unsigned char& field);
HRESULT ZELReadDouble(KORISpecObject* feature, ZELKeySlot& slot, double& field);

/// Reads into a field of a behavior; the field is left as it is on every failure.
HRESULT ZELReadString(KORISpecObject* feature, ZELKeySlot& slot, KORUnicodeString& field);

/// The store keeps 0 or 1, whatever the flag's byte is.
HRESULT ZELWriteFlag(KORISpecObject* feature, ZELKeySlot& slot, unsigned char field);
HRESULT ZELWriteDouble(KORISpecObject* feature, ZELKeySlot& slot, double field);
HRESULT ZELWriteString(KORISpecObject* feature, ZELKeySlot& slot, const KORUnicodeString& field);
