#include "zelmat/properties/HyperelasticProperty.h"
#include "tests/zelmat/properties/SampleCard.h"
#include "tests/zelmat/support/CardFile.h"
#include "zelmat/mechanics/hyperelastic/HyperelasticResponse.h"

namespace {

using testing::DoubleEq;
using testing::ElementsAre;
using zelmat::HyperelasticProperty;
using zelmat::mechanics::HyperelasticModel;
using zelmat::mechanics::OutsidePolicy;

TEST(HyperelasticProperty, HasOgdensCoefficientsAsTheyAreStored) {
    const auto rubber = HyperelasticProperty::Of(SampleBlock("natural_rubber_treloar", "hyperelastic"));

    ASSERT_TRUE(rubber.Ok());
    EXPECT_EQ(rubber->Model(), HyperelasticModel::OGDEN);
    EXPECT_EQ(rubber->Order(), 3);
    const auto at = rubber->At({}, OutsidePolicy::REFUSE);
    ASSERT_TRUE(at.Ok());
    EXPECT_THAT(at->coefficients,
                ElementsAre(DoubleEq(409500.0), 1.3, DoubleEq(3000.0), 5.0, DoubleEq(10000.0), -2.0));
    EXPECT_DOUBLE_EQ(at->energy->ShearModulus(), 422500.0);
    EXPECT_TRUE(at->volumetric.IsIncompressible());
}

TEST(HyperelasticProperty, InterpolatesTheCoefficientsBetweenTemperatures) {
    const auto card = CardOf(R"({"name": "M", "hyperelastic": [{"model": "NEO_HOOKE", "order": 1,
        "temperature_dependent": true, "columns": ["C10", "D1", "temperature"],
        "rows": [[500000, 1e-9, 300], [400000, 2e-9, 400]]}]})");
    const auto property = HyperelasticProperty::Of(card.fits.front());

    ASSERT_TRUE(property.Ok());
    const auto at = property->At(325.0, OutsidePolicy::REFUSE);
    ASSERT_TRUE(at.Ok());
    EXPECT_THAT(at->coefficients, ElementsAre(DoubleEq(475000.0)));
    EXPECT_DOUBLE_EQ(at->volumetric.BulkModulus().Value(), 1.6e9);
    EXPECT_THAT(at->notes, ElementsAre("interpolated between rows"));
    EXPECT_EQ(property->At({}, OutsidePolicy::REFUSE).Why(),
              "the table depends on temperature, and none is given");
    EXPECT_EQ(property->At(500.0, OutsidePolicy::REFUSE).Why(), "the temperature lies outside the table");
}

}  // namespace
