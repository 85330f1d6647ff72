#include "zelmat/materials/HyperelasticForms.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

/// "name [unit]" of every coefficient, with a star for those that a card may leave out.
std::vector<std::string> Coefficients(const char* model, int order) {
    std::vector<std::string> columns;
    const auto form = zelmat::HyperelasticForm(model, order);
    for (const auto& column : form.value().columns) {
        columns.push_back(column.name + " [" + column.unit + "]" + (column.whenAbsent ? "*" : ""));
    }
    return columns;
}

TEST(HyperelasticForms, KnowEveryModel) {
    EXPECT_THAT(zelmat::HyperelasticModels(),
                ElementsAre("ARRUDA_BOYCE", "MOONEY_RIVLIN", "NEO_HOOKE", "OGDEN", "POLYNOMIAL",
                            "REDUCED_POLYNOMIAL", "VAN_DER_WAALS", "YEOH"));
    EXPECT_EQ(zelmat::HyperelasticForm("MARLOW", 1), std::nullopt);
}

TEST(HyperelasticForms, NameTheCoefficientsOfModelsWithoutTerms) {
    for (const int order : {1, 4}) {
        EXPECT_THAT(Coefficients("ARRUDA_BOYCE", order), ElementsAre("mu [Pa]", "lambda_m [-]", "D [1/Pa]*"));
        EXPECT_THAT(Coefficients("MOONEY_RIVLIN", order), ElementsAre("C10 [Pa]", "C01 [Pa]", "D1 [1/Pa]*"));
        EXPECT_THAT(Coefficients("NEO_HOOKE", order), ElementsAre("C10 [Pa]", "D1 [1/Pa]*"));
        EXPECT_THAT(Coefficients("VAN_DER_WAALS", order),
                    ElementsAre("mu [Pa]", "lambda_m [-]", "a [-]", "beta [-]", "D [1/Pa]*"));
        EXPECT_THAT(Coefficients("YEOH", order), ElementsAre("C10 [Pa]", "C20 [Pa]", "C30 [Pa]", "D1 [1/Pa]*",
                                                             "D2 [1/Pa]*", "D3 [1/Pa]*"));
    }
}

TEST(HyperelasticForms, NameOneCoefficientOfEachKindPerTerm) {
    EXPECT_THAT(Coefficients("OGDEN", 1), ElementsAre("mu_1 [Pa]", "alpha_1 [-]", "D1 [1/Pa]*"));
    EXPECT_THAT(Coefficients("OGDEN", 2), ElementsAre("mu_1 [Pa]", "alpha_1 [-]", "mu_2 [Pa]", "alpha_2 [-]",
                                                      "D1 [1/Pa]*", "D2 [1/Pa]*"));
    EXPECT_THAT(Coefficients("REDUCED_POLYNOMIAL", 2),
                ElementsAre("C10 [Pa]", "C20 [Pa]", "D1 [1/Pa]*", "D2 [1/Pa]*"));
}

TEST(HyperelasticForms, OrderThePolynomialByThePowersOfTheInvariants) {
    EXPECT_THAT(Coefficients("POLYNOMIAL", 1), ElementsAre("C10 [Pa]", "C01 [Pa]", "D1 [1/Pa]*"));
    EXPECT_THAT(Coefficients("POLYNOMIAL", 2), ElementsAre("C10 [Pa]", "C01 [Pa]", "C20 [Pa]", "C11 [Pa]",
                                                           "C02 [Pa]", "D1 [1/Pa]*", "D2 [1/Pa]*"));
    EXPECT_EQ(Coefficients("POLYNOMIAL", 6).size(), 33u);  // 27 and 6
}

TEST(HyperelasticForms, FindTheOrderThatTheCoefficientsTell) {
    EXPECT_EQ(zelmat::OrderOfColumns("OGDEN", {"mu_1", "alpha_1", "mu_2", "alpha_2", "temperature"}, 6), 2);
    EXPECT_EQ(zelmat::OrderOfColumns("POLYNOMIAL", {"C10", "C01"}, 6), 1);
    EXPECT_EQ(zelmat::OrderOfColumns("POLYNOMIAL", {"C10", "C01", "C11"}, 6), 2);
    EXPECT_EQ(zelmat::OrderOfColumns("REDUCED_POLYNOMIAL", {"C30", "D1"}, 6), 3);
    EXPECT_EQ(zelmat::OrderOfColumns("NEO_HOOKE", {}, 6), 1);
    EXPECT_EQ(zelmat::OrderOfColumns("YEOH", {"C10"}, 6), 3) << "as it is kept";
    EXPECT_EQ(zelmat::OrderOfColumns("OGDEN", {"C10"}, 6), std::nullopt);
    EXPECT_EQ(zelmat::OrderOfColumns("MARLOW", {"C10"}, 6), std::nullopt);
}

}  // namespace
