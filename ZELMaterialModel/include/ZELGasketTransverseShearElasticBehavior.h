#pragma once

#include "framework/KORExport.h"

/// Elastic transverse shear of a gasket.
class KOR_EXPORT ZELGasketTransverseShearElasticBehavior {
public:
    virtual ~ZELGasketTransverseShearElasticBehavior() = default;
};
