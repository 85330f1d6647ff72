#include "zelmat/properties/ExpansionProperty.h"
#include "tests/zelmat/properties/SampleCard.h"
#include "tests/zelmat/support/CardFile.h"

namespace {

using zelmat::mechanics::OutsidePolicy;

zelmat::Material Instantaneous() {
    return CardOf(R"({"name": "M", "thermal_expansion": {"temperature_dependent": true,
        "columns": ["thermal_expansion", "temperature"], "kind": "Instantaneous",
        "rows": [[1e-5, 300], [2e-5, 400]], "reference_temperature": 300}})");
}

TEST(ExpansionProperty, TakesTheMeanCoefficientsOfACard) {
    const auto steel =
        zelmat::ExpansionOf(SampleBlock("steel_s355", "thermal_expansion"), OutsidePolicy::REFUSE);

    ASSERT_TRUE(steel.Ok());
    EXPECT_EQ(steel->ReferenceTemperature(), 293.15);
    EXPECT_NEAR(steel->StrainAt(373.15, OutsidePolicy::REFUSE)->values[0], 9.984e-4, 1e-16);
}

TEST(ExpansionProperty, IntegratesInstantaneousCoefficients) {
    const auto card = Instantaneous();
    const auto expansion = zelmat::ExpansionOf(*card.Find("thermal_expansion"), OutsidePolicy::REFUSE);

    ASSERT_TRUE(expansion.Ok());
    EXPECT_TRUE(zelmat::IsInstantaneous(*card.Find("thermal_expansion")));
    EXPECT_NEAR(expansion->StrainAt(400.0, OutsidePolicy::REFUSE)->values[0], 1.5e-3, 1e-15);
}

TEST(ExpansionProperty, IsMeanWhereTheKindSaysSoWhateverElseItNames) {
    auto card = Instantaneous();
    zelmat::Block block = *card.Find("thermal_expansion");
    block.values.Set("kind", std::string("mean (secant) from 20 degC, not the instantaneous one"));
    EXPECT_FALSE(zelmat::IsInstantaneous(block));
    block.values.Set("kind", std::string("tangent"));
    EXPECT_TRUE(zelmat::IsInstantaneous(block));
}

TEST(ExpansionProperty, NeedsTheReferenceTemperature) {
    const auto card = CardOf(R"({"name": "M", "thermal_expansion": {"temperature_dependent": false,
        "columns": ["thermal_expansion"], "rows": [[1e-5]]}})");
    const auto expansion = zelmat::ExpansionOf(*card.Find("thermal_expansion"), OutsidePolicy::REFUSE);

    ASSERT_FALSE(expansion.Ok());
    EXPECT_EQ(expansion.Why(), "thermal_expansion has no reference_temperature");
}

}  // namespace
