#pragma once

#include "framework/KORExport.h"

/// Elastic membrane behavior of a gasket.
class KOR_EXPORT ZELGasketMembraneElasticBehavior {
public:
    virtual ~ZELGasketMembraneElasticBehavior() = default;
};
