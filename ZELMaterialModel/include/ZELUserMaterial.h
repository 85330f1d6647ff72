#pragma once

#include "framework/KORExport.h"

/// Material law supplied by the user.
class KOR_EXPORT ZELUserMaterial {
public:
    virtual ~ZELUserMaterial() = default;
};
