#pragma once

#include "framework/KORUnicodeString.h"
#include "interfaces/KORISamAnalysisEntity.h"

/// Unique names for features.
struct ZELNameUtil {
    /// On entry `name` is a prefix; on success it is the prefix followed by the smallest positive integer
    /// that makes a name no object in `existing` has ("Layup-1"). An object's name is its alias, or its
    /// instance name when it has none. E_FAIL for an empty prefix; `name` is untouched then.
    static HRESULT GetNextUniqueName(KORUnicodeString& name, const KORListValKORBaseUnknown_var& existing);
};
