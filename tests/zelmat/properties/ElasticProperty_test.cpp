#include "zelmat/properties/ElasticProperty.h"
#include "tests/zelmat/properties/SampleCard.h"

namespace {

using zelmat::mechanics::OutsidePolicy;

TEST(ElasticProperty, InterpolatesTheConstantsBetweenTheRowsOfACard) {
    const auto steel =
        zelmat::ElasticityAt(SampleBlock("steel_s355", "elastic"), 423.15, OutsidePolicy::REFUSE);

    ASSERT_TRUE(steel.Ok());
    EXPECT_DOUBLE_EQ(steel->constants.youngsModulus, 199.5e9);
    EXPECT_DOUBLE_EQ(steel->constants.poissonsRatio, 0.3);
    EXPECT_THAT(steel->notes, testing::ElementsAre("interpolated between rows"));
}

TEST(ElasticProperty, NeedsNoTemperatureWhereNothingDependsOnIt) {
    const auto copper =
        zelmat::ElasticityAt(SampleBlock("copper_ofhc", "elastic"), {}, OutsidePolicy::REFUSE);

    ASSERT_TRUE(copper.Ok());
    EXPECT_EQ(copper->constants.youngsModulus, 124e9);
    const auto steel = zelmat::ElasticityAt(SampleBlock("steel_s355", "elastic"), {}, OutsidePolicy::REFUSE);
    ASSERT_FALSE(steel.Ok());
    EXPECT_EQ(steel.Why(), "the table depends on temperature, and none is given");
}

TEST(ElasticProperty, RefusesATemperatureOutsideTheTable) {
    const auto steel =
        zelmat::ElasticityAt(SampleBlock("steel_s355", "elastic"), 200.0, OutsidePolicy::REFUSE);

    ASSERT_FALSE(steel.Ok());
    EXPECT_EQ(steel.Why(), "the temperature lies outside the table");
}

}  // namespace
