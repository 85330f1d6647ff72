#pragma once

#include <span>

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/store/ZELTypedAccess.h"
#include "ZELShared/ZELCftArrayZELCftArrayDouble.h"
#include "framework/KORStatus.h"

// Reads and writes of classes that hold a feature's attribute access and their keys. Each answers E_FAIL, and
// does nothing, when the access or a key is missing.

template <class Value>
HRESULT ZELGetBound(const KORISpecAttrAccess_var& access, KORISpecAttrKey* key, Value& value) {
    if (!access || !key) return E_FAIL;
    ZELRead(*access, key, value);
    return S_OK;
}

template <class Value>
HRESULT ZELSetBound(const KORISpecAttrAccess_var& access, KORISpecAttrKey* key, const Value& value) {
    if (!access || !key) return E_FAIL;
    ZELWrite(*access, key, value);
    return S_OK;
}

/// Stores a table column by column; a missing key leaves the columns before it written.
HRESULT ZELSetBoundColumns(const KORISpecAttrAccess_var& access, std::span<KORISpecAttrKey* const> columns,
                           const ZELCftArrayZELCftArrayDouble& table);

/// Appends the stored rows to a table. E_FAIL, and the table is as it was, when a column was never valued or
/// the columns differ in length.
HRESULT ZELGetBoundColumns(const KORISpecAttrAccess_var& access, std::span<KORISpecAttrKey* const> columns,
                           ZELCftArrayZELCftArrayDouble& table);
