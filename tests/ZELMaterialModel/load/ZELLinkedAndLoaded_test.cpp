#include "tests/ZELMaterialModel/load/ZELHandedOut.h"

// This program links the module besides loading it.

TEST_F(ZELKeptOverUnload, TheModuleStaysInAProgramThatLinksIt) {
    ASSERT_TRUE(ZELIsInProcess(ZEL_MODULE_LIBRARY)) << "linked";
    values_.Take(features_);
    const std::size_t records = Records();
    const auto library = Load();

    ASSERT_EQ(library->Unload(), S_OK);

    EXPECT_TRUE(ZELIsInProcess(ZEL_MODULE_LIBRARY));
    EXPECT_EQ(Records(), records);
    values_.ExpectGood(features_);
    values_.Take(features_);
    values_.ExpectGood(features_);
}
