#pragma once

#include "framework/KORExport.h"

/// Plasticity of a material.
class KOR_EXPORT ZELMaterialPlastic {
public:
    virtual ~ZELMaterialPlastic() = default;
};
