#pragma once

#include <cstdint>

#include "ZELMaterialModel/include/ZELModuleObject.h"
#include "interfaces/KORISpecObject.h"

/// Implements KORISamValidity on "ZELLayupLT" features: a layup is valid when it has at least one layer and
/// every layer has a material. Thicknesses and angles play no part.
class ZELELayupValidity final : public KORBaseUnknown, private ZELModuleObject {
    KORDeclareClass

    HRESULT
    IsValid(const KORISpecObject_var& layup, const void* context, std::uint32_t& status);
};
