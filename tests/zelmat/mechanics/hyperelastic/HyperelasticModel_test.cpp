#include "zelmat/mechanics/hyperelastic/HyperelasticModel.h"

#include <gmock/gmock.h>

namespace {

using namespace zelmat::mechanics;
using testing::ElementsAre;

TEST(HyperelasticModel, IsFoundByTheKeywordThatItHas) {
    EXPECT_EQ(AllHyperelasticModels().size(), 8u);
    for (const auto model : AllHyperelasticModels()) EXPECT_EQ(HyperelasticModelOf(Keyword(model)), model);
    EXPECT_EQ(Keyword(HyperelasticModel::VAN_DER_WAALS), "VAN_DER_WAALS");
    EXPECT_FALSE(HyperelasticModelOf("ogden"));
    EXPECT_FALSE(HyperelasticModelOf(""));
}

TEST(HyperelasticModel, NamesItsCoefficientsInTheOrderInWhichTheyAreStored) {
    EXPECT_THAT(CoefficientNames(HyperelasticModel::NEO_HOOKE, 7), ElementsAre("C10"));
    EXPECT_THAT(CoefficientNames(HyperelasticModel::MOONEY_RIVLIN, 1), ElementsAre("C10", "C01"));
    EXPECT_THAT(CoefficientNames(HyperelasticModel::YEOH, 1), ElementsAre("C10", "C20", "C30"));
    EXPECT_THAT(CoefficientNames(HyperelasticModel::REDUCED_POLYNOMIAL, 2), ElementsAre("C10", "C20"));
    EXPECT_THAT(CoefficientNames(HyperelasticModel::POLYNOMIAL, 2),
                ElementsAre("C10", "C01", "C20", "C11", "C02"));
    EXPECT_THAT(CoefficientNames(HyperelasticModel::OGDEN, 2),
                ElementsAre("mu_1", "alpha_1", "mu_2", "alpha_2"));
    EXPECT_THAT(CoefficientNames(HyperelasticModel::ARRUDA_BOYCE, 1), ElementsAre("mu", "lambda_m"));
    EXPECT_THAT(CoefficientNames(HyperelasticModel::VAN_DER_WAALS, 1),
                ElementsAre("mu", "lambda_m", "a", "beta"));
}

TEST(HyperelasticModel, HasAnOrderOnlyWhereTermsCanBeAdded) {
    std::vector<HyperelasticModel> with;
    for (const auto model : AllHyperelasticModels()) {
        if (HasOrder(model)) with.push_back(model);
    }
    EXPECT_THAT(with, ElementsAre(HyperelasticModel::OGDEN, HyperelasticModel::POLYNOMIAL,
                                  HyperelasticModel::REDUCED_POLYNOMIAL));
}

}  // namespace
