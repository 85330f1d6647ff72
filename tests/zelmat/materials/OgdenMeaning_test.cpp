#include <gmock/gmock.h>

#include "tests/zelmat/support/CardFile.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Ogden's rubber with what a card says of the convention, which stands on line 2.
StoredCard Rubber(const std::string& convention) {
    return StoredCard(R"({"name": "x", "hyperelastic": [
{"model": "OGDEN", "order": 3, "temperature_dependent": false, )" +
                      convention + R"(
 "columns": ["mu_1", "alpha_1", "mu_2", "alpha_2", "mu_3", "alpha_3", "D1"],
 "rows": [[630000, 1.3, 1200, 5, -10000, -2, 1e-9]]}]})");
}

std::vector<std::vector<double>> StoredRows(const StoredCard& stored) {
    return Rows(stored.Block("hyperelastic").tables.at(0));
}

const auto kConverted = ElementsAre(ElementsAre(409500, 1.3, 3000, 5, 10000, -2, 1e-9, 0, 0));
const auto kAsGiven = ElementsAre(ElementsAre(630000, 1.3, 1200, 5, -10000, -2, 1e-9, 0, 0));

TEST(OgdenMeaning, IsConvertedFromTheOtherConventionAndTold) {
    const StoredCard stored = Rubber(R"("ogden_convention": "mu/alpha",)");

    EXPECT_THAT(StoredRows(stored), kConverted);
    EXPECT_THAT(stored.findings,
                ElementsAre("card.json:2: note[ogden-converted]: the coefficients of OGDEN were converted "
                            "from mu/alpha to 2mu/alpha^2 (by its ogden_convention, mu times alpha/2 is "
                            "stored)"));
}

TEST(OgdenMeaning, IsReadFromTheFormulaWhenNoKeySaysIt) {
    const StoredCard stored = Rubber(
        R"("potential": "W = sum (mu_i / alpha_i) (l1^alpha_i + ...). The other has 2 mu_i / alpha_i^2.",)");

    EXPECT_THAT(StoredRows(stored), kConverted);
    EXPECT_THAT(stored.findings,
                ElementsAre("card.json:2: note[ogden-converted]: the coefficients of OGDEN were converted "
                            "from mu/alpha to 2mu/alpha^2 (by the formula in its potential, mu times alpha/2 "
                            "is stored)"));
}

TEST(OgdenMeaning, IsReadFromTheFormulaInEverySpellingOfTheField) {
    for (const char* formula :
         {"W = sum mu_p/alpha_p (l1^alpha_p + ...)", "sum_n (mu_n / alpha_n) (...)",
          "W = \u03a3 \u03bc_i/\u03b1_i (\u03bb1^\u03b1_i ...)", "mu_1/alpha_1 (...) + ...",
          R"(\\sum \\frac{\\mu_i}{\\alpha_i} (...))", "mu/alpha (l1^alpha + ...)"}) {
        EXPECT_THAT(StoredRows(Rubber(R"("potential": ")" + std::string(formula) + "\",")), kConverted)
            << formula;
    }
    for (const char* formula : {"sum 2 mu_i/alpha_i\u00b2 (...)", "sum 2*mu_i/alpha_i**2*(...)",
                                "sum (2 mu_p)/(alpha_p)^2 (...)", R"(\\frac{2\\mu_i}{\\alpha_i^2} (...))"}) {
        EXPECT_THAT(StoredRows(Rubber(R"("potential": ")" + std::string(formula) + "\",")), kAsGiven)
            << formula;
    }
}

TEST(OgdenMeaning, IsTheStoredOneWhenTheCardSaysSoOrNothing) {
    for (const char* convention :
         {"", R"("ogden_convention": "2mu/alpha^2",)", R"x("potential": "W = sum 2 mu_i/alpha_i^2 (...)",)x",
          R"x("ogden_convention": "2mu/alpha^2", "potential": "sum mu_i/alpha_i (...)",)x",
          R"("potential": "Ogden's",)"}) {
        const StoredCard stored = Rubber(convention);
        EXPECT_THAT(StoredRows(stored), kAsGiven) << convention;
        EXPECT_THAT(stored.findings, IsEmpty()) << convention;
    }
}

TEST(OgdenMeaning, HasTwoNamesOnly) {
    EXPECT_THAT(
        FindingsOf(R"({"name": "x", "hyperelastic": [{"model": "OGDEN", "order": 1,
"ogden_convention": "mu", "temperature_dependent": false, "columns": ["mu_1", "alpha_1"],
"rows": [[1, 2]]}]})"),
        ElementsAre("card.json:2: error[unknown-ogden_convention]: there is no ogden_convention \"mu\" "
                    "(expected one of: 2mu/alpha^2, mu/alpha)"));
}

}  // namespace
