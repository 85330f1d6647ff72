#include <gtest/gtest.h>

#include "ZELMaterialModel/include/ZELIMaterial.h"
#include "ZELMaterialModel/include/ZELIMaterialPropertiesFact.h"
#include "framework/KORInstantiateComponent.h"
#include "tests/support/ZELMapStore.h"

namespace {

// This program links the module and names nothing of it: not one symbol asks the linker to keep the library.

TEST(ZELModuleLinked, IsInAProgramThatLinksItAndNamesNothingOfIt) {
    ZELIMaterialPropertiesFact_var factory;

    EXPECT_EQ(KORInstantiate("ZELMaterialPropertiesFact", factory), S_OK);

    EXPECT_TRUE(factory);
}

TEST(ZELModuleLinked, AnswersItsInterfacesOnFeatures) {
    ZELMapStore store;

    EXPECT_TRUE(ZELIMaterial_var(store.Make("ZELMaterialLT")));
}

}  // namespace
