#include "zelmat/mechanics/hyperelastic/OgdenConvention.h"

#include <gmock/gmock.h>

namespace {

using namespace zelmat::mechanics;
using enum OgdenConvention;
using testing::ElementsAre;

TEST(OgdenConvention, ConvertsTreloarsRubberOfOgden1972) {
    const std::vector<double> published = {630000, 1.3, 1200, 5, -10000, -2};

    const auto stored = ConvertOgden(published, MU_BY_ALPHA, TWO_MU_BY_ALPHA_SQUARED);

    EXPECT_THAT(stored, ElementsAre(409500, 1.3, 3000, 5, 10000, -2));
    EXPECT_EQ(ConvertOgden(stored, TWO_MU_BY_ALPHA_SQUARED, MU_BY_ALPHA), published);
    EXPECT_EQ(ConvertOgden(published, MU_BY_ALPHA, MU_BY_ALPHA), published);
}

TEST(OgdenConvention, IsKnownByItsKeyword) {
    EXPECT_EQ(OgdenConventionOf("2mu/alpha^2"), TWO_MU_BY_ALPHA_SQUARED);
    EXPECT_EQ(OgdenConventionOf("mu/alpha"), MU_BY_ALPHA);
    EXPECT_FALSE(OgdenConventionOf("mu"));
}

}  // namespace
