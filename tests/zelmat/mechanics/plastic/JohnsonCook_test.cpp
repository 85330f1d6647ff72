#include "zelmat/mechanics/plastic/JohnsonCook.h"

#include <gmock/gmock.h>

#include <cmath>

namespace {

using namespace zelmat::mechanics;
using testing::Contains;
using testing::ElementsAre;

/// OFHC copper of Johnson and Cook, 1983, in MPa and K.
JohnsonCook Copper() {
    return {.a = 90,
            .b = 292,
            .n = 0.31,
            .m = 1.09,
            .meltingTemperature = 1356,
            .transitionTemperature = 298,
            .rate = {}};
}

TEST(JohnsonCook, HasThePublishedFlowStressOfCopper) {
    EXPECT_NEAR(FlowStressOf(Copper(), 0.1, 298)->stress, 233.0154153, 5e-8);
    EXPECT_NEAR(FlowStressOf(Copper(), 0.1, 600)->stress, 173.5994930, 5e-8);
    EXPECT_EQ(FlowStressOf(Copper(), 0, 298)->stress, 90);
    EXPECT_THAT(FlowStressOf(Copper(), 0, 298)->notes, ElementsAre("the factor of the strain rate is 1"));
}

TEST(JohnsonCook, IsColdBelowTheTransitionAndMoltenFromTheMeltingTemperatureOn) {
    const auto cold = FlowStressOf(Copper(), 0.1, 200);
    EXPECT_NEAR(cold->stress, 233.0154153, 5e-8);
    EXPECT_THAT(cold->notes, Contains("below the transition temperature: the factor of temperature is 1"));
    for (const double temperature : {1356.0, 2000.0}) {
        const auto molten = FlowStressOf(Copper(), 0.1, temperature);
        EXPECT_EQ(molten->stress, 0);
        EXPECT_THAT(molten->notes, Contains("at or above the melting temperature: no stress"));
    }
    EXPECT_GT(FlowStressOf(Copper(), 0.1, 1355.999)->stress, 0);
}

TEST(JohnsonCook, TakesAStrainRateOnlyWithCAndItsReference) {
    EXPECT_EQ(FlowStressOf(Copper(), 0.1, 298, 10).Why(),
              "a strain rate needs C and the reference rate, and the material does not have both");
    auto copper = Copper();
    copper.rate = JohnsonCookRate{.c = 0.025, .referenceRate = 1};
    EXPECT_NEAR(FlowStressOf(copper, 0.1, 298, std::exp(4.0))->stress, 1.1 * 233.0154153, 1e-7);
    EXPECT_NEAR(FlowStressOf(copper, 0.1, 298)->stress, 233.0154153, 5e-8);
    EXPECT_THAT(FlowStressOf(copper, 0.1, 298, 0.5)->notes, ElementsAre("below the reference strain rate"));
    EXPECT_EQ(FlowStressOf(copper, 0.1, 298, 1e-40)->stress, 0);
    EXPECT_EQ(FlowStressOf(copper, 0.1, 298, 0).Why(), "a strain rate has to be a finite number above 0");
    copper.rate->referenceRate = 0;
    EXPECT_FALSE(FlowStressOf(copper, 0.1, 298, 1).Ok());
}

TEST(JohnsonCook, IsTabulatedForProgramsThatDoNotHaveIt) {
    const auto table = *Tabulated(Copper(), {298, 600}, {0, 0.1, 0.2});
    ASSERT_EQ(table.Rows().size(), 6u);
    EXPECT_EQ(table.Rows()[0].stress, 90);
    EXPECT_NEAR(table.Rows()[1].stress, 233.0154153, 5e-8);
    EXPECT_NEAR(table.Rows()[4].stress, 173.5994930, 5e-8);
    EXPECT_EQ(table.Rows()[4].temperature, 600);
    EXPECT_EQ(table.Rows()[4].plasticStrain, 0.1);
    EXPECT_FALSE(Tabulated(Copper(), {298}, {0.1}).Ok());
    EXPECT_FALSE(Tabulated(Copper(), {600, 298}, {0}).Ok());
    EXPECT_FALSE(Tabulated(Copper(), {298}, {0, -1}).Ok());
    EXPECT_THAT(TabulationStrains(0.4, 2), ElementsAre(0, 0.1, 0.4));
}

TEST(JohnsonCook, IsRefusedForCoefficientsThatAreNone) {
    const auto why = [](auto change) {
        auto law = Copper();
        change(law);
        return FlowStressOf(law, 0.1, 298).Why();
    };
    EXPECT_EQ(why([](auto& law) { law.n = -0.1; }), "n may not be below 0 and m has to be above 0");
    EXPECT_EQ(why([](auto& law) { law.m = 0; }), "n may not be below 0 and m has to be above 0");
    EXPECT_EQ(why([](auto& law) { law.meltingTemperature = 298; }),
              "the melting temperature has to be above the transition temperature");
    EXPECT_EQ(why([](auto& law) { law.a = NAN; }),
              "a coefficient of Johnson and Cook's law is not a finite number");
    EXPECT_EQ(FlowStressOf(Copper(), -0.1, 298).Why(),
              "a plastic strain has to be a finite number from 0 on");
    EXPECT_EQ(FlowStressOf(Copper(), 0.1, NAN).Why(), "a temperature has to be a finite number");
}

}  // namespace
