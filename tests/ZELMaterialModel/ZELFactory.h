#pragma once

#include <gtest/gtest.h>

#include "ZELMaterialModel/include/ZELIMaterialPropertiesFact.h"
#include "framework/KORInstantiateComponent.h"

/// A new factory component, as callers of the module get it.
inline ZELIMaterialPropertiesFact_var ZELFactory() {
    ZELIMaterialPropertiesFact_var factory;
    EXPECT_EQ(KORInstantiate("ZELMaterialPropertiesFact", factory), S_OK);
    return factory;
}
