#pragma once

#include <gtest/gtest.h>

#include "ZELMaterialModel/include/ZELIMaterialPropertiesFact.h"
#include "framework/KORInstantiateComponent.h"

/// A new factory component, as callers of the module get it.
inline ZELIMaterialPropertiesFact_var ZELFactory() {
    void* found = nullptr;
    EXPECT_EQ(KORInstantiateComponent("ZELMaterialPropertiesFact", IID_ZELIMaterialPropertiesFact, &found),
              S_OK);
    return ZELIMaterialPropertiesFact_var::Adopt(static_cast<ZELIMaterialPropertiesFact*>(found));
}
