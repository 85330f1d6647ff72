#include <gtest/gtest.h>

#include "ZELMaterialModel/include/ZELIMaterial.h"
#include "ZELMaterialModel/include/ZELIMaterialPropertiesFact.h"
#include "framework/KORInstantiateComponent.h"
#include "tests/support/ZELMapStore.h"

namespace {

// This program links the module and names nothing of it: not one symbol asks the linker to keep the library.

TEST(ZELModuleLinked, IsInAProgramThatLinksItAndNamesNothingOfIt) {
    void* found = nullptr;

    EXPECT_EQ(KORInstantiateComponent("ZELMaterialPropertiesFact", IID_ZELIMaterialPropertiesFact, &found),
              S_OK);

    EXPECT_TRUE(ZELIMaterialPropertiesFact_var::Adopt(static_cast<ZELIMaterialPropertiesFact*>(found)));
}

TEST(ZELModuleLinked, AnswersItsInterfacesOnFeatures) {
    ZELMapStore store;

    EXPECT_TRUE(ZELIMaterial_var(store.Make("ZELMaterialLT")));
}

}  // namespace
