#include "zelmat/mechanics/fit/HardeningFit.h"

#include <gmock/gmock.h>

#include <cmath>

namespace {

using namespace zelmat::mechanics;
using enum DeviationMeasure;
using enum HardeningLaw;
using testing::Contains;
using testing::ElementsAre;

std::vector<StressStrain> Curve(double (*stress)(double)) {
    std::vector<StressStrain> points;
    for (const double e : {0.0, 0.002, 0.005, 0.01, 0.02, 0.04, 0.07, 0.1, 0.15, 0.2, 0.3, 0.4}) {
        points.push_back({.strain = e, .stress = stress(e)});
    }
    return points;
}

HardeningFit Fitted(HardeningLaw law, const std::vector<StressStrain>& points, DeviationMeasure measure) {
    const auto fit = FitHardening(law, points, measure);
    EXPECT_TRUE(fit.Ok());
    return fit.Ok() ? *fit : HardeningFit{};
}

TEST(HardeningFit, FindsTheCoefficientsBehindACurve) {
    for (const auto measure : {RELATIVE, ABSOLUTE}) {
        const auto copper =
            Fitted(JOHNSON_COOK, Curve([](double e) { return 90e6 + 292e6 * std::pow(e, 0.31); }), measure);
        EXPECT_NEAR(copper.coefficients[0].value, 90e6, 90);
        EXPECT_NEAR(copper.coefficients[1].value, 292e6, 292);
        EXPECT_NEAR(copper.coefficients[2].value, 0.31, 3e-7);
        const auto swift =
            Fitted(SWIFT, Curve([](double e) { return 600e6 * std::pow(0.003 + e, 0.2); }), measure);
        EXPECT_NEAR(swift.coefficients[0].value, 600e6, 600);
        EXPECT_NEAR(swift.coefficients[1].value, 0.003, 3e-9);
        EXPECT_NEAR(swift.coefficients[2].value, 0.2, 2e-7);
        const auto voce =
            Fitted(VOCE, Curve([](double e) { return 400e6 - 250e6 * std::exp(-e / 0.05); }), measure);
        EXPECT_NEAR(voce.coefficients[0].value, 150e6, 150);
        EXPECT_NEAR(voce.coefficients[1].value, 400e6, 400);
        EXPECT_NEAR(voce.coefficients[2].value, 0.05, 5e-8);
        EXPECT_LT(voce.deviation.rmsRelative.value(), 1e-9);
        EXPECT_NEAR(voce.deviation.rSquared.value(), 1, 1e-12);
    }
}

TEST(HardeningFit, KeepsItsBoundsAndSaysSo) {
    const auto fit =
        Fitted(LUDWIK, Curve([](double e) { return -50.0 + 500.0 * std::pow(e, 0.2); }), ABSOLUTE);
    EXPECT_EQ(fit.coefficients[0].name, "sigma_0");
    EXPECT_TRUE(fit.coefficients[0].atBound);
    EXPECT_FALSE(fit.coefficients[0].standardDeviation);
    EXPECT_TRUE(fit.coefficients[1].standardDeviation);
    EXPECT_THAT(fit.warnings, Contains("sigma_0 is at its bound"));
}

TEST(HardeningFit, IsRefusedForTooFewPointsAndForWhatNoCurveHas) {
    EXPECT_EQ(FitHardening(VOCE, {{0, 1}, {0.1, 2}}, ABSOLUTE).Why(),
              "2 points are too few for the 3 coefficients of voce");
    EXPECT_EQ(FitHardening(VOCE, {{0, 0}, {0.1, 2}, {0.2, 3}}, RELATIVE).Why(),
              "2 points are too few for the 3 coefficients of voce");
    EXPECT_EQ(FitHardening(VOCE, {{-0.1, 1}, {0.1, 2}, {0.2, 3}}, ABSOLUTE).Why(),
              "plastic strains and stresses have to be finite numbers, strains from 0 on");
}

TEST(HardeningLaw, HasTheDerivativesByItsCoefficients) {
    const std::vector<std::vector<double>> coefficients = {
        {200, 400, 0.3}, {600, 0.003, 0.2}, {150, 400, 0.05}};
    int i = 0;
    for (const auto law : {LUDWIK, SWIFT, VOCE}) {
        const auto& at = coefficients[static_cast<std::size_t>(i++)];
        for (const double e : {0.0, 0.01, 0.3}) {
            const auto stress = StressOf(law, at, e);
            for (std::size_t k = 0; k < at.size(); ++k) {
                auto more = at, less = at;
                more[k] *= 1 + 1e-6;
                less[k] *= 1 - 1e-6;
                EXPECT_NEAR(stress.byCoefficient[k],
                            (StressOf(law, more, e).stress - StressOf(law, less, e).stress) / (2e-6 * at[k]),
                            1e-5 * (1 + std::abs(stress.byCoefficient[k])))
                    << Keyword(law) << " " << e << " " << k;
            }
        }
    }
}

TEST(HardeningLaw, IsKnownByItsKeyword) {
    for (const auto law : {LUDWIK, SWIFT, VOCE, JOHNSON_COOK}) EXPECT_EQ(HardeningLawOf(Keyword(law)), law);
    EXPECT_FALSE(HardeningLawOf("hollomon"));
    EXPECT_THAT(CoefficientNames(JOHNSON_COOK), ElementsAre("A", "B", "n"));
}

}  // namespace
