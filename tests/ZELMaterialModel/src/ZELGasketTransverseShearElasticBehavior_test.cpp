#include "ZELMaterialModel/include/ZELGasketTransverseShearElasticBehavior.h"

#include <gmock/gmock.h>

#include <limits>

#include "tests/ZELMaterialModel/ZELFullMaterialTree.h"
#include "tests/ZELMaterialModel/ZELRows.h"
#include "tests/support/ZELStores.h"

using testing::ElementsAre;
using testing::Optional;

namespace {

constexpr const char* kStiffness = "ZELGasketTransverseShearElasticShearStiffnessData";
constexpr const char* kTemperature = "ZELGasketTransverseShearElasticTemperatureData";

HRESULT SetStiffness(ZELGasketTransverseShearElasticBehavior& shear, double stiffness) {
    return shear.SetGasketTransverseShearElasticDataArray(ZELTableOf({{1.0, 2.0}, {stiffness, 4.0}}));
}

class ZELGasketTransverseShearElasticBehaviorTest : public ZELStoreTest {
protected:
    ZELFullMaterialTree tree_{Store()};
    ZELGasketTransverseShearElasticBehavior shear_{tree_.material.Get()};
};

}  // namespace

TEST_P(ZELGasketTransverseShearElasticBehaviorTest, StoresItsTwoColumns) {
    EXPECT_EQ(SetStiffness(shear_, 3.0), S_OK);

    EXPECT_THAT(List(tree_.transverseShear, kStiffness), Optional(ElementsAre(1.0, 3.0)));
    EXPECT_THAT(List(tree_.transverseShear, kTemperature), Optional(ElementsAre(2.0, 4.0)));
}

TEST_P(ZELGasketTransverseShearElasticBehaviorTest, RefusesAStiffnessThatIsNotPositiveWhileItIsEnabled) {
    SetStiffness(shear_, 3.0);
    shear_.SetGasketTransverseShearElasticFlag(1);
    for (const double stiffness : {0.0, -0.0, -1.0, -std::numeric_limits<double>::infinity()}) {
        EXPECT_EQ(SetStiffness(shear_, stiffness), E_FAIL) << stiffness;
        EXPECT_THAT(List(tree_.transverseShear, kStiffness), Optional(ElementsAre(1.0, 3.0))) << "as it was";
    }

    EXPECT_EQ(SetStiffness(shear_, 5e-324), S_OK);
    EXPECT_EQ(SetStiffness(shear_, std::numeric_limits<double>::quiet_NaN()), S_OK)
        << "what is no number passes";
}

TEST_P(ZELGasketTransverseShearElasticBehaviorTest, LooksAtTheStoredFlagAtEachWrite) {
    SetFlag(tree_.transverseShear, "ZELGasketTransverseShearElasticFlag", true);
    EXPECT_EQ(SetStiffness(shear_, 0.0), E_FAIL);

    SetFlag(tree_.transverseShear, "ZELGasketTransverseShearElasticFlag", false);
    EXPECT_EQ(SetStiffness(shear_, 0.0), S_OK);
    EXPECT_THAT(List(tree_.transverseShear, kStiffness), Optional(ElementsAre(1.0, 0.0)));
}

TEST_P(ZELGasketTransverseShearElasticBehaviorTest, ChecksNothingWhenItCannotFindOutWhetherItIsEnabled) {
    Store().OmitAttribute("ZELGasketTransverseShearElasticLT", "ZELGasketTransverseShearElasticFlag");
    const ZELFullMaterialTree bare(Store());
    ZELGasketTransverseShearElasticBehavior shear(bare.material.Get());

    EXPECT_EQ(SetStiffness(shear, -1.0), S_OK);

    EXPECT_THAT(List(bare.transverseShear, kStiffness), Optional(ElementsAre(1.0, -1.0)));
}

TEST_P(ZELGasketTransverseShearElasticBehaviorTest, RefusesARowWithoutStiffnessWhileItIsEnabled) {
    shear_.SetGasketTransverseShearElasticFlag(1);

    EXPECT_EQ(shear_.SetGasketTransverseShearElasticDataArray(ZELTableOf({{}})), E_FAIL);

    EXPECT_EQ(List(tree_.transverseShear, kStiffness), std::nullopt);
}

ZEL_ON_BOTH_STORES(ZELGasketTransverseShearElasticBehaviorTest);
