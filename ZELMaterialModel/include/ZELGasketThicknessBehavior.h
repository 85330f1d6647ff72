#pragma once

#include "framework/KORExport.h"

/// Behavior of a gasket in its thickness direction.
class KOR_EXPORT ZELGasketThicknessBehavior {
public:
    virtual ~ZELGasketThicknessBehavior() = default;
};
