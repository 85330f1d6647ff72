#pragma once

#include "ZELMaterialModel/include/ZELModuleObject.h"
#include "framework/KORBaseUnknown.h"

/// The instance factory of the factory component, as a code extension of the component's name.
class ZELMaterialPropertiesFactInst final : public KORBaseUnknown, private ZELModuleObject {
    KORDeclareClass

    /// A new factory as a KORBaseUnknown* with one reference; E_OUTOFMEMORY and null when it cannot be
    /// allocated.
    [[nodiscard]] HRESULT CreateInstance(void** out);
};
