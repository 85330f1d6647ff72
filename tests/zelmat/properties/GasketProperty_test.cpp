#include "zelmat/properties/GasketProperty.h"
#include "tests/zelmat/properties/SampleCard.h"
#include "tests/zelmat/support/CardFile.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zelmat::GasketUnloading;
using zelmat::mechanics::OutsidePolicy;

TEST(GasketProperty, ReadsLoadingAndBothUnloadingTablesOfACard) {
    const zelmat::Block gasket = SampleBlock("gasket_fibre_illustrative", "gasket");

    EXPECT_THAT(zelmat::UnloadingsOf(gasket),
                ElementsAre(GasketUnloading::ELASTIC_PLASTIC, GasketUnloading::DAMAGE));
    EXPECT_THAT(zelmat::UnloadingEnds(gasket, GasketUnloading::DAMAGE),
                ElementsAre(0.00012, 0.0002, 0.000245));
    const auto damage = zelmat::GasketOf(gasket, GasketUnloading::DAMAGE);
    ASSERT_TRUE(damage.Ok()) << damage.Why();
    ASSERT_EQ(damage->size(), 1u);
    EXPECT_EQ(damage->front().temperature, 293.15);
    const auto& thickness = damage->front().thickness;
    EXPECT_EQ(thickness.Loading(0.0002, OutsidePolicy::REFUSE)->pressure, 34.5e6);
    EXPECT_NEAR(thickness.Unloading(0.00012, 0.0002)->pressure, 11213800.0, 1e-6);
    const auto plastic = zelmat::GasketOf(gasket, GasketUnloading::ELASTIC_PLASTIC);
    ASSERT_TRUE(plastic.Ok());
    EXPECT_NEAR(plastic->front().thickness.Unloading(0.00016, 0.0002)->pressure, 13756000.0, 1e-6);
}

TEST(GasketProperty, HasOneCurveForEachTemperature) {
    const auto card = CardOf(R"({"name": "M", "gasket": {"unloading": false, "loading": {
        "temperature_dependent": true, "columns": ["pressure", "closure", "temperature"],
        "rows": [[0, 0, 300], [1, 1, 300], [2, 2, 300], [0, 0, 400], [3, 1, 400], [6, 2, 400]]}}})");
    const zelmat::Block& gasket = *card.Find("gasket");

    EXPECT_THAT(zelmat::UnloadingsOf(gasket), IsEmpty());
    const auto curves = zelmat::GasketOf(gasket, GasketUnloading::NONE);
    ASSERT_TRUE(curves.Ok());
    ASSERT_EQ(curves->size(), 2u);
    EXPECT_EQ(curves->back().temperature, 400.0);
    EXPECT_EQ(curves->back().thickness.Loading(1.5, OutsidePolicy::REFUSE)->pressure, 4.5);
    EXPECT_EQ(zelmat::GasketOf(gasket, GasketUnloading::DAMAGE).Why(),
              "unloading has no curves at one of the temperatures of loading");
}

}  // namespace
