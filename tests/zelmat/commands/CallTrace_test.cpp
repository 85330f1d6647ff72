#include "zelmat/commands/CallTrace.h"

#include <gtest/gtest.h>

#include <sstream>

#include "ZELMaterialModel/include/ZELIMaterial.h"

namespace {

TEST(CallTrace, PrintsInterfaceOperationAndClass) {
    std::ostringstream out;
    zelmat::CallTrace trace(out);
    const KORTieRecord binding(ZELIMaterial::MetaObject(), KORBaseUnknown::MetaObject());
    const auto object = KORBaseUnknown_var::Adopt(new KORBaseUnknown);

    trace.Called(binding, "GetElasticProperties", object.Get());
    trace.Called(binding, "GetPlasticProperties", nullptr);

    EXPECT_EQ(out.str(),
              "trace: ZELIMaterial.GetElasticProperties on KORBaseUnknown\n"
              "trace: ZELIMaterial.GetPlasticProperties\n");
}

TEST(CallTrace, ObservesAsLongAsItLives) {
    std::ostringstream out;
    {
        const zelmat::CallTrace trace(out);
        EXPECT_TRUE(Tie_StackCtx::IsObserved());
    }
    EXPECT_FALSE(Tie_StackCtx::IsObserved());
}

}  // namespace
