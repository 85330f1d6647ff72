#include "zelmat/mechanics/fit/HyperelasticFit.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

#include "tests/zelmat/mechanics/fit/SampleTests.h"
#include "tests/zelmat/mechanics/hyperelastic/ExampleEnergies.h"
#include "zelmat/mechanics/hyperelastic/HyperelasticResponse.h"

namespace {

using namespace zelmat::mechanics;
using enum DeviationMeasure;
using enum HyperelasticModel;
using enum LoadingMode;
using testing::Contains;
using testing::HasSubstr;
using testing::Not;

HyperelasticFit Fitted(HyperelasticModel model, int order, const std::vector<TestCurve>& curves,
                       DeviationMeasure measure = RELATIVE) {
    const auto fit = FitHyperelastic(model, order, curves, measure);
    EXPECT_TRUE(fit.Ok()) << Keyword(model) << ": " << (fit.Ok() ? "" : fit.Why());
    return fit.Ok() ? *fit : HyperelasticFit{};
}

TestCurve Curve(LoadingMode mode, std::vector<TestPoint> points) {
    return {.mode = mode, .points = std::move(points), .weight = 1.0, .lower = {}, .upper = {}};
}

/// What the coefficients would have measured: tension and compression, equibiaxial and planar tension.
std::vector<TestCurve> Synthetic(const StrainEnergy& energy, double unit = 1.0) {
    std::vector<TestCurve> curves;
    for (const auto mode : {UNIAXIAL, EQUIBIAXIAL, PLANAR}) {
        TestCurve curve = Curve(mode, {});
        for (double x = mode == UNIAXIAL ? 0.5 : 1.1; x < (mode == UNIAXIAL ? 4.0 : 3.0); x += 0.15) {
            const auto response = Respond(energy, mode, x);
            if (response.Ok()) curve.points.push_back({x, unit * response->nominalStress});
        }
        curves.push_back(curve);
    }
    return curves;
}

class EveryExample : public testing::TestWithParam<std::size_t> {};

TEST_P(EveryExample, ComesBackFromItsOwnResponse) {
    const auto& [name, model, order, coefficients] = ExampleEnergies()[GetParam()];
    const auto energy = MakeEnergy(model, order, coefficients);
    for (const auto measure : {RELATIVE, ABSOLUTE}) {
        const auto fit = Fitted(model, order, Synthetic(*energy, 1e6), measure);

        EXPECT_LT(fit.deviation.rmsRelative.value(), 1e-9);
        const auto names = CoefficientNames(model, order);
        std::vector<double> expected;
        for (std::size_t i = 0; i < names.size(); ++i) {
            expected.push_back(coefficients[i] * (IsStressCoefficient(names[i]) ? 1e6 : 1.0));
        }
        ASSERT_EQ(fit.coefficients.size(), expected.size());
        for (std::size_t i = 0; i < expected.size(); ++i) {
            EXPECT_EQ(fit.coefficients[i].name, names[i]);
            if (model == OGDEN && order > 1 &&
                i < 4) {  // the terms with alpha 5 and 1.3 stand by falling alpha
                EXPECT_NEAR(fit.coefficients[(i + 2) % 4].value, expected[i], 1e-6 * std::abs(expected[i]))
                    << i;
            } else {
                EXPECT_NEAR(fit.coefficients[i].value, expected[i], 1e-6 * std::abs(expected[i])) << i;
            }
        }
        EXPECT_NEAR(fit.shearModulus, energy->ShearModulus() * 1e6, 1.0);
    }
}

INSTANTIATE_TEST_SUITE_P(HyperelasticFit, EveryExample, testing::Range<std::size_t>(0, 11),
                         [](const auto& tested) { return ExampleEnergies()[tested.param].name; });

TEST(HyperelasticFit, MeasuresThePublishedCoefficientsOfTreloarsRubberAsTheirCardDoes) {
    const auto curves = SampleCurves("natural_rubber_treloar");
    const auto deviation = [](const CardFit& fit, const std::vector<TestCurve>& tests) {
        const auto energy = MakeEnergy(fit.model, fit.order, fit.coefficients);
        return DeviationOf(*energy, TakeTestData(tests, RELATIVE)->points)->rmsRelative.value();
    };
    const auto fits = SampleFits("natural_rubber_treloar");
    ASSERT_EQ(fits.size(), 10u);
    EXPECT_NEAR(deviation(fits[0], curves), 0.0819, 5e-5);  // OGDEN
    EXPECT_NEAR(deviation(fits[1], curves), 0.223, 5e-4);   // NEO_HOOKE
    EXPECT_NEAR(deviation(fits[2], {curves[1]}), 0.154, 5e-4);
    EXPECT_NEAR(deviation(fits[3], {curves[0]}), 0.371, 5e-4);
    EXPECT_NEAR(deviation(fits[4], {curves[2]}), 0.139, 5e-4);
    EXPECT_NEAR(deviation(fits[6], curves), 0.122, 5e-4);   // YEOH
    EXPECT_NEAR(deviation(fits[7], curves), 0.118, 5e-4);   // REDUCED_POLYNOMIAL
    EXPECT_NEAR(deviation(fits[8], curves), 0.146, 5e-4);   // POLYNOMIAL
    EXPECT_NEAR(deviation(fits[9], curves), 0.0919, 5e-5);  // VAN_DER_WAALS
}

TEST(HyperelasticFit, OfEveryRubberSampleIsAtLeastAsGoodAsItsCard) {
    for (const std::string card : {"natural_rubber_treloar", "silicone_rtv141"}) {
        const auto curves = SampleCurves(card);
        for (const auto& published : SampleFits(card)) {
            auto tests = curves;
            if (published.variant.find("uniaxial") != std::string::npos) tests = {curves[0]};
            if (published.variant.find("equibiaxial") != std::string::npos) tests = {curves[1]};
            if (published.variant.find("planar") != std::string::npos) tests = {curves[2]};
            const auto energy = MakeEnergy(published.model, published.order, published.coefficients);
            const auto points = TakeTestData(tests, RELATIVE)->points;

            const auto fit = Fitted(published.model, published.order, tests);

            EXPECT_LE(fit.deviation.rmsRelative.value(),
                      DeviationOf(*energy, points)->rmsRelative.value() * (1 + 1e-12))
                << card << " " << Keyword(published.model) << " " << published.variant;
        }
    }
}

TEST(HyperelasticFit, FindsTheComputedCoefficientsOfTreloarsRubber) {
    const auto curves = SampleCurves("natural_rubber_treloar");
    const auto yeoh = Fitted(YEOH, 3, curves).Values();
    EXPECT_NEAR(yeoh[0], 193090, 5);
    EXPECT_NEAR(yeoh[1], -1787.7, 0.05);
    EXPECT_NEAR(yeoh[2], 44.009, 5e-4);
    const auto waals = Fitted(VAN_DER_WAALS, 1, curves).Values();
    EXPECT_NEAR(waals[0], 424270, 5);
    EXPECT_NEAR(waals[1], 10.546, 5e-4);
    EXPECT_NEAR(waals[2], 0.3029, 5e-5);
    EXPECT_NEAR(waals[3], 0.0104, 5e-5);
}

TEST(HyperelasticFit, ReportsDeviationsByModeAndTheRangeOfTheTests) {
    const auto fit = Fitted(NEO_HOOKE, 1, SampleCurves("natural_rubber_treloar"));
    EXPECT_EQ(fit.deviation.points, 53u);
    ASSERT_EQ(fit.modes.size(), 3u);
    EXPECT_EQ(fit.modes[0].mode, UNIAXIAL);
    EXPECT_EQ(fit.modes[0].deviation.points, 24u);
    EXPECT_EQ(fit.modes[0].lower, 1.02);
    EXPECT_EQ(fit.modes[0].upper, 7.6);
    EXPECT_EQ(fit.modes[2].mode, PLANAR);
    EXPECT_EQ(fit.modes[2].deviation.points, 13u);
    EXPECT_GT(fit.modes[2].deviation.rSquared.value(), 0.9);
}

TEST(HyperelasticFit, GivesTheStandardDeviationOfTheOneCoefficientOfALine) {
    // In shear the neo-Hookean stress is 2 C10 g. To the points (1, 2.2), (2, 3.6), absolute: the slope 2 C10
    // is (2.2 + 2 * 3.6)/5 = 1.88, the residuals -0.32 and 0.16, s^2 = 0.128, the deviation of C10
    // sqrt(0.128/5)/2.
    const auto fit = Fitted(NEO_HOOKE, 1, {Curve(SIMPLE_SHEAR, {{1, 2.2}, {2, 3.6}})}, ABSOLUTE);
    EXPECT_NEAR(fit.coefficients[0].value, 0.94, 1e-12);
    EXPECT_NEAR(fit.coefficients[0].standardDeviation.value(), 0.08, 1e-12);
    EXPECT_NEAR(fit.deviation.rmsAbsolute, std::sqrt(0.064), 1e-12);
    EXPECT_NEAR(fit.deviation.rSquared.value(), 1 - 0.128 / 0.98, 1e-12);
}

TEST(HyperelasticFit, WithAsManyPointsAsCoefficientsHasNoStandardDeviation) {
    const auto fit = Fitted(NEO_HOOKE, 1, {Curve(UNIAXIAL, {{2, 1.75}})});
    EXPECT_NEAR(fit.coefficients[0].value, 0.5, 1e-12);
    EXPECT_FALSE(fit.coefficients[0].standardDeviation);
    EXPECT_FALSE(fit.deviation.rSquared);
}

TEST(HyperelasticFit, KeepsTheShearModulusAboveZeroAndSaysSo) {
    const auto fit = Fitted(NEO_HOOKE, 1, {Curve(UNIAXIAL, {{1.5, -1}, {2, -2}})}, ABSOLUTE);
    EXPECT_GT(fit.shearModulus, 0.0);
    EXPECT_TRUE(fit.coefficients[0].atBound);
    EXPECT_FALSE(fit.coefficients[0].standardDeviation);
    EXPECT_THAT(fit.warnings, Contains("mu0 is at its bound: the tests ask for a negative modulus"));
    EXPECT_THAT(fit.warnings, Contains("C10 is at its bound"));
}

// 38 times the same 53 points have the same minimum.
TEST(HyperelasticFit, FindsInVeryManyPointsWhatItFindsInFew) {
    const auto few = SampleCurves("natural_rubber_treloar");
    std::vector<TestCurve> many;
    for (int i = 0; i < 38; ++i) many.insert(many.end(), few.begin(), few.end());
    for (const auto& [model, order] : {std::pair(VAN_DER_WAALS, 1), std::pair(YEOH, 3)}) {
        const auto of53 = Fitted(model, order, few).Values(), of2014 = Fitted(model, order, many).Values();
        for (std::size_t i = 0; i < of53.size(); ++i) {
            EXPECT_NEAR(of2014[i] / of53[i], 1.0, 1e-7) << Keyword(model) << ' ' << i;
        }
    }
}

TEST(HyperelasticFit, OfVanDerWaalsToANeoHookeanMaterialEndsAtItsBounds) {
    const auto fit = Fitted(VAN_DER_WAALS, 1, Synthetic(*MakeEnergy(NEO_HOOKE, 1, {0.5})));
    EXPECT_TRUE(fit.coefficients[1].atBound);
    EXPECT_FALSE(fit.coefficients[1].standardDeviation);
    EXPECT_THAT(fit.warnings, Contains("lambda_m is at its bound"));
}

TEST(HyperelasticFit, OfOneModeWarnsThatItCannotTellTheInvariantsApart) {
    const auto planar = Synthetic(*MakeEnergy(MOONEY_RIVLIN, 1, {0.4, 0.1}))[2];
    const auto fit = Fitted(MOONEY_RIVLIN, 1, {planar});
    EXPECT_LT(fit.deviation.rmsRelative.value(), 1e-9);
    EXPECT_NEAR(fit.shearModulus, 1.0, 1e-9);
    EXPECT_FALSE(fit.coefficients[0].standardDeviation);
    EXPECT_THAT(fit.warnings,
                Contains("one mode of test only: it cannot tell the parts of the two invariants apart"));
    EXPECT_THAT(fit.warnings,
                Contains("the tests cannot tell the coefficients apart: others give the same response"));
    const auto both = Fitted(MOONEY_RIVLIN, 1, Synthetic(*MakeEnergy(MOONEY_RIVLIN, 1, {0.4, 0.1})));
    EXPECT_THAT(both.warnings, Not(Contains(HasSubstr("apart"))));
    EXPECT_NEAR(both.coefficients[1].standardDeviation.value(), 0, 1e-12);
}

TEST(HyperelasticFit, WithMoreTermsThanTheMaterialHasAnswersItsResponseAndSaysThatItIsNotUnique) {
    const auto fit = Fitted(OGDEN, 3, Synthetic(*MakeEnergy(OGDEN, 1, {1, 3})));
    EXPECT_LT(fit.deviation.rmsRelative.value(), 1e-9);
    EXPECT_THAT(fit.warnings, Contains(testing::AnyOf(HasSubstr("not unique"), HasSubstr("cannot tell"))));
}

TEST(HyperelasticFit, TellsWhereItsTestsAreUnstable) {
    const auto fit = Fitted(POLYNOMIAL, 2, SampleCurves("natural_rubber_treloar"));
    ASSERT_EQ(fit.stability.size(), 6u);
    EXPECT_EQ(fit.stability[0].mode, UNIAXIAL);
    EXPECT_EQ(fit.stability[0].criterion, StabilityCriterion::DRUCKER);
    EXPECT_NEAR(fit.stability[0].limits.tension.value(), 5.0188, 1e-3);
    EXPECT_FALSE(fit.stability[0].dataInside.value());
    EXPECT_THAT(fit.warnings,
                Contains("unstable within the range of the uniaxial test by the criterion drucker"));
    const auto yeoh = Fitted(YEOH, 3, SampleCurves("natural_rubber_treloar"));
    EXPECT_TRUE(yeoh.stability[0].dataInside.value());
    EXPECT_THAT(yeoh.warnings, Not(Contains(HasSubstr("drucker"))));
}

TEST(HyperelasticFit, NamesTheCorrelationsAbove95Percent) {
    const auto fit = Fitted(REDUCED_POLYNOMIAL, 4, SampleCurves("natural_rubber_treloar"));
    ASSERT_EQ(fit.correlations.size(), 2u);
    EXPECT_EQ(fit.correlations[0].first, "C20");
    EXPECT_EQ(fit.correlations[0].second, "C30");
    EXPECT_NEAR(fit.correlations[0].value, -0.95262, 1e-4);
    EXPECT_EQ(fit.correlations[1].first, "C30");
    EXPECT_EQ(fit.correlations[1].second, "C40");
    EXPECT_NEAR(fit.correlations[1].value, -0.98186, 1e-4);
    EXPECT_NEAR(fit.coefficients[0].standardDeviation.value(), 5705.9, 1);
}

TEST(HyperelasticFit, GivesWeightToASpecimen) {
    auto soft = Curve(SIMPLE_SHEAR, {{1, 1}});
    auto hard = Curve(SIMPLE_SHEAR, {{1, 2}});
    hard.weight = 3.0;
    EXPECT_NEAR(Fitted(NEO_HOOKE, 1, {soft, hard}, ABSOLUTE).Values()[0], 0.875, 1e-12);
}

/// Coefficients of fits to the same tests in Pa and in psi, the latter brought to Pa.
void ExpectTheSameInEveryUnit(HyperelasticModel model, int order, double tolerance) {
    constexpr double kPsi = 6894.757293168361;
    auto curves = SampleCurves("natural_rubber_treloar");
    const auto pascal = Fitted(model, order, curves).Values();
    for (auto& curve : curves) {
        for (auto& point : curve.points) point.nominalStress /= kPsi;
    }
    const auto psi = Fitted(model, order, curves).Values();
    const auto names = CoefficientNames(model, order);
    for (std::size_t i = 0; i < pascal.size(); ++i) {
        const double found = psi[i] * (IsStressCoefficient(names[i]) ? kPsi : 1.0);
        EXPECT_NEAR(found, pascal[i], tolerance * std::abs(pascal[i])) << names[i];
    }
}

// What is linear in its coefficients keeps all digits; the others lose those by which the tests tell them
// apart.
TEST(HyperelasticFit, IsTheSameInEveryUnitOfStress) {
    ExpectTheSameInEveryUnit(NEO_HOOKE, 1, 1e-12);
    ExpectTheSameInEveryUnit(MOONEY_RIVLIN, 1, 1e-12);
    ExpectTheSameInEveryUnit(YEOH, 3, 1e-12);
    ExpectTheSameInEveryUnit(POLYNOMIAL, 2, 1e-12);
    ExpectTheSameInEveryUnit(REDUCED_POLYNOMIAL, 4, 1e-12);
    ExpectTheSameInEveryUnit(ARRUDA_BOYCE, 1, 1e-12);
    ExpectTheSameInEveryUnit(VAN_DER_WAALS, 1, 1e-12);
    ExpectTheSameInEveryUnit(OGDEN, 3, 1e-10);
}

TEST(HyperelasticFit, IsRefusedForTooFewPointsAndOrdersThatItDoesNotHave) {
    const auto few = Curve(UNIAXIAL, {{1, 0}, {1.5, 1}, {2, 1.75}});
    EXPECT_EQ(FitHyperelastic(YEOH, 3, {few}, RELATIVE).Why(),
              "2 test points are too few for the 3 coefficients of YEOH");
    EXPECT_EQ(FitHyperelastic(OGDEN, 0, {few}, RELATIVE).Why(), "the order of a fit lies between 1 and 8");
    EXPECT_EQ(FitHyperelastic(OGDEN, 9, {few}, RELATIVE).Why(), "the order of a fit lies between 1 and 8");
    EXPECT_EQ(FitHyperelastic(OGDEN, 1, {}, RELATIVE).Why(), "there is no test point to fit to");
    EXPECT_TRUE(FitHyperelastic(NEO_HOOKE, 0, {few}, RELATIVE).Ok());
}

}  // namespace
