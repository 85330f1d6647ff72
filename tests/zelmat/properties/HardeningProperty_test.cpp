#include "zelmat/properties/HardeningProperty.h"
#include "tests/zelmat/properties/SampleCard.h"

namespace {

using testing::ElementsAre;
using zelmat::FlowStressAt;
using zelmat::HardeningOf;
using zelmat::mechanics::OutsidePolicy;

/// OFHC copper, with values that the block keeps beside its table.
zelmat::HardeningProperty Copper(const std::vector<zelmat::KeptValue>& kept = {}) {
    zelmat::Block block = SampleBlock("copper_ofhc", "plastic");
    block.kept = kept;
    return HardeningOf(block).Value();
}

// Johnson and Cook 1983, OFHC copper.
TEST(HardeningProperty, GivesTheStressOfJohnsonAndCooksCopper) {
    const auto copper = HardeningOf(SampleBlock("copper_ofhc", "plastic"));

    ASSERT_TRUE(copper.Ok());
    EXPECT_NEAR(FlowStressAt(*copper, 0.1, 298.0)->stress, 233.0154153e6, 0.05);
    EXPECT_NEAR(FlowStressAt(*copper, 0.1, 600.0)->stress, 173.5994930e6, 0.05);
    EXPECT_EQ(FlowStressAt(*copper, 0.1, {}).Why(), "the stress depends on temperature, and none is given");
}

TEST(HardeningProperty, TakesAStrainRateOnlyWithCAndTheReferenceRate) {
    EXPECT_FALSE(FlowStressAt(Copper(), 0.1, 298.0, 10.0).Ok());
    EXPECT_FALSE(FlowStressAt(Copper({{"C", "0.025"}}), 0.1, 298.0, 10.0).Ok());

    const auto copper = Copper({{"C", "0.025"}, {"reference_strain_rate", "\"60 1/min\""}});
    // 233.0154153 MPa (1 + 0.025 ln 10)
    EXPECT_NEAR(FlowStressAt(copper, 0.1, 298.0, 10.0)->stress, 246.4288608e6, 0.05);
    EXPECT_NEAR(FlowStressAt(copper, 0.1, 298.0)->stress, 233.0154153e6, 0.05);
}

TEST(HardeningProperty, ReadsATableBetweenItsTemperatures) {
    const auto steel = HardeningOf(SampleBlock("stainless_304", "plastic"));

    ASSERT_TRUE(steel.Ok());
    EXPECT_EQ(steel->hardening, "isotropic");
    EXPECT_EQ(FlowStressAt(*steel, 0.0, 473.15)->stress, 142800000.0);
    const auto between = FlowStressAt(*steel, 0.0, 423.15);
    EXPECT_NEAR(between->stress, 157500000.0, 1e-6);
    EXPECT_THAT(between->notes, ElementsAre("interpolated between the curves of two temperatures"));
}

TEST(HardeningProperty, IsConstantBeyondItsPointsUnlessToldToRefuse) {
    const auto steel = HardeningOf(SampleBlock("stainless_304", "plastic")).Value();

    EXPECT_EQ(FlowStressAt(steel, 0.5, 293.15)->stress, 290.6e6);
    EXPECT_THAT(FlowStressAt(steel, 0.5, 293.15)->notes,
                ElementsAre("beyond the last plastic strain: stress of the last point"));
    EXPECT_EQ(FlowStressAt(steel, 0.5, 293.15, {}, OutsidePolicy::REFUSE).Why(),
              "the plastic strain lies beyond the last point of the curve");
    EXPECT_EQ(FlowStressAt(steel, 0.0, 100.0, {}, OutsidePolicy::REFUSE).Why(),
              "the temperature lies outside the curves");
    EXPECT_FALSE(FlowStressAt(steel, 0.0, 293.15, {}, OutsidePolicy::LINEAR).Ok());
    EXPECT_EQ(FlowStressAt(steel, 0.0, 293.15, 1.0).Why(), "a hardening table knows no strain rate");
}

}  // namespace
