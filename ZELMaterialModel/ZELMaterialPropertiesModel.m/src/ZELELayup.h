#pragma once

#include "ZELMaterialModel/include/ZELModuleObject.h"
#include "interfaces/KORISpecObject.h"

/// Implements ZELILayup on "ZELLayupLT" features. It holds nothing but its link to the feature.
class ZELELayup final : public KORBaseUnknown, private ZELModuleObject {
    KORDeclareClass

    HRESULT
    SetLayers(const KORListValKORISpecObject_var& layers);
    HRESULT GetLayers(KORListValKORISpecObject_var& layers);
    bool IsUnused();
};
