#include "ZELMaterialModel/include/ZELGasketMembraneElasticBehavior.h"

#include <gmock/gmock.h>

#include <limits>

#include "tests/ZELMaterialModel/ZELFullMaterialTree.h"
#include "tests/ZELMaterialModel/ZELRows.h"
#include "tests/support/ZELStores.h"

using testing::ElementsAre;
using testing::Optional;

namespace {

class ZELGasketMembraneElasticBehaviorTest : public ZELStoreTest {
protected:
    HRESULT SetRatio(double poissonsRatio) {
        return membrane_.SetGasketMembraneElasticDataArray(
            ZELTableOf({{1.0, 0.3, 2.0}, {3.0, poissonsRatio, 4.0}}));
    }

    ZELFullMaterialTree tree_{Store()};
    ZELGasketMembraneElasticBehavior membrane_{tree_.material.Get()};
};

}  // namespace

TEST_P(ZELGasketMembraneElasticBehaviorTest, StoresItsThreeColumns) {
    EXPECT_EQ(SetRatio(0.4), S_OK);

    EXPECT_THAT(List(tree_.membrane, "ZELGasketMembraneElasticYoungsModulusData"),
                Optional(ElementsAre(1.0, 3.0)));
    EXPECT_THAT(List(tree_.membrane, "ZELGasketMembraneElasticPoissonsRatioData"),
                Optional(ElementsAre(0.3, 0.4)));
    EXPECT_THAT(List(tree_.membrane, "ZELGasketMembraneElasticTemperatureData"),
                Optional(ElementsAre(2.0, 4.0)));
}

TEST_P(ZELGasketMembraneElasticBehaviorTest, AcceptsRatiosBetweenItsBounds) {
    for (const double ratio : {0.49, -0.99, 0.0, 0.49999999999999994, -0.9999999999999999}) {
        EXPECT_EQ(SetRatio(ratio), S_OK) << ratio;
    }
    EXPECT_EQ(SetRatio(std::numeric_limits<double>::quiet_NaN()), S_OK) << "what is no number passes";
}

TEST_P(ZELGasketMembraneElasticBehaviorTest, StoresARatioOnOrBeyondItsBoundsAndReportsIt) {
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double ratio : {0.5, -1.0, 0.6, -2.0, infinity, -infinity}) {
        EXPECT_EQ(SetRatio(ratio), E_FAIL) << ratio;
        EXPECT_THAT(List(tree_.membrane, "ZELGasketMembraneElasticPoissonsRatioData"),
                    Optional(ElementsAre(0.3, ratio)));
    }
}

TEST_P(ZELGasketMembraneElasticBehaviorTest, ChecksWhetherOrNotItIsEnabled) {
    membrane_.SetGasketMembraneElasticFlag(0);
    EXPECT_EQ(SetRatio(0.5), E_FAIL);
    membrane_.SetGasketMembraneElasticFlag(1);
    EXPECT_EQ(SetRatio(0.5), E_FAIL);
}

TEST_P(ZELGasketMembraneElasticBehaviorTest, TakesAMissingRatioForZero) {
    EXPECT_EQ(membrane_.SetGasketMembraneElasticDataArray(ZELTableOf({{1.0}})), S_OK);

    EXPECT_THAT(List(tree_.membrane, "ZELGasketMembraneElasticPoissonsRatioData"),
                Optional(ElementsAre(0.0)));
}

ZEL_ON_BOTH_STORES(ZELGasketMembraneElasticBehaviorTest);
