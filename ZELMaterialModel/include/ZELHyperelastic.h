#pragma once

#include "framework/KORExport.h"

/// Hyperelasticity of a material.
class KOR_EXPORT ZELHyperelastic {
public:
    virtual ~ZELHyperelastic() = default;
};
