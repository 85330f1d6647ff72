#include "zelmat/materials/BrokenRules.h"

#include <gmock/gmock.h>

#include "tests/zelmat/support/CardFile.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(BrokenRules, NameAFirstPlasticStrainOtherThanZeroAndTheDataAreStored) {
    const StoredCard stored(R"({"name": "x", "plastic": {"hardening": "isotropic",
        "temperature_dependent": false, "columns": ["yield_stress", "plastic_strain", "temperature"],
        "rows": [
            [235e6, 0.002, 293.15],
            [341e6, 0.05, 293.15]]}})");

    EXPECT_THAT(stored.findings,
                ElementsAre("card.json:4: warning[first-plastic-strain]: row 1 of plastic: plastic strain is "
                            "0.002 (has to be 0, the table was stored all the same)"));
    EXPECT_THAT(Rows(stored.Block("plastic").tables.at(0)),
                ElementsAre(ElementsAre(235e6, 0.002, 293.15), ElementsAre(341e6, 0.05, 293.15)));
}

/// A gasket with the loading rows given, the first of them on line 3.
std::string Gasket(const std::string& rows) {
    return R"({"name": "x", "gasket": {"loading": {"temperature_dependent": false,
"columns": ["pressure", "closure", "temperature"], "rows": [
)" + rows + "]}}}";
}

TEST(BrokenRules, NameALoadingCurveThatDoesNotStartAtTheOrigin) {
    const StoredCard stored(Gasket("[1000, 1e-6, 293.15],\n[2e6, 4e-5, 293.15], [5e6, 8e-5, 293.15]"));

    EXPECT_THAT(
        stored.findings,
        ElementsAre("card.json:3: warning[first-pressure]: row 1 of gasket.loading: pressure is 1000 "
                    "Pa (has to be 0, the table was stored all the same)",
                    "card.json:3: warning[first-closure]: row 1 of gasket.loading: closure is 1e-06 m "
                    "(has to be 0, the table was stored all the same)"));
    EXPECT_THAT(Rows(stored.Block("gasket").tables.at(0)),
                ElementsAre(ElementsAre(1000.0, 1e-6, 293.15), ElementsAre(2e6, 4e-5, 293.15),
                            ElementsAre(5e6, 8e-5, 293.15)));
}

TEST(BrokenRules, NameALoadingCurveOfTooFewRows) {
    const StoredCard two(Gasket("[0, 0, 293.15],\n[2e6, 4e-5, 293.15]"));
    EXPECT_THAT(two.findings,
                ElementsAre("card.json:2: warning[too-few-rows]: gasket.loading has 2 rows (has to have 3 or "
                            "more, the table was stored all the same)"));
    EXPECT_THAT(Rows(two.Block("gasket").tables.at(0)),
                ElementsAre(ElementsAre(0.0, 0.0, 293.15), ElementsAre(2e6, 4e-5, 293.15)));

    const StoredCard one(Gasket("[0, 0, 293.15]"));
    EXPECT_THAT(one.findings,
                ElementsAre("card.json:2: warning[too-few-rows]: gasket.loading has 1 row (has to have 3 or "
                            "more, the table was stored all the same)"));
}

TEST(BrokenRules, LetALoadingCurveStartWhereTheBehaviorStillSeesTheOrigin) {
    EXPECT_THAT(
        StoredCard(Gasket("[1e-13, -1e-13, 293.15], [2e6, 4e-5, 293.15], [5e6, 8e-5, 293.15]")).findings,
        IsEmpty());
}

TEST(BrokenRules, NameEveryPoissonsRatioOfAMembraneOutOfBounds) {
    const StoredCard stored(R"({"name": "x", "gasket_membrane": {"temperature_dependent": false,
"columns": ["youngs_modulus", "poissons_ratio", "temperature"], "rows": [
[2e9, 0.49, 293.15],
[2e9, 0.5, 293.15],
[2e9, -1, 293.15]]}})");

    EXPECT_THAT(stored.findings,
                ElementsAre("card.json:4: warning[poissons-ratio]: row 2 of gasket_membrane: Poisson's ratio "
                            "is 0.5 (has to be above -1 and below 0.5, the table was stored all the same)",
                            "card.json:5: warning[poissons-ratio]: row 3 of gasket_membrane: Poisson's ratio "
                            "is -1 (has to be above -1 and below 0.5, the table was stored all the same)"));
    EXPECT_THAT(Rows(stored.Block("gasket_membrane").tables.at(0)),
                ElementsAre(ElementsAre(2e9, 0.49, 293.15), ElementsAre(2e9, 0.5, 293.15),
                            ElementsAre(2e9, -1.0, 293.15)));
}

TEST(BrokenRules, NameAShearStiffnessThatIsNotPositiveAndNothingIsStored) {
    const StoredCard stored(R"({"name": "x", "gasket_transverse_shear": {"temperature_dependent": false,
"columns": ["shear_stiffness", "temperature"], "rows": [
[4e11, 293.15],
[0, 373.15]]}})");

    EXPECT_THAT(stored.findings,
                ElementsAre("card.json:4: error[shear-stiffness]: row 2 of gasket_transverse_shear: shear "
                            "stiffness is 0 Pa/m (has to be above 0, nothing of the table was stored)"));
    EXPECT_THAT(stored.material.blocks, IsEmpty());
}

TEST(BrokenRules, DoNotApplyToTheRowOfJohnsonCook) {
    EXPECT_THAT(StoredCard(R"({"name": "x", "plastic": {"hardening": "johnson-cook",
        "temperature_dependent": false,
        "columns": ["A", "B", "n", "m", "melting_temperature", "transition_temperature"],
        "rows": [[9e7, 2.92e8, 0.31, 1.09, 1356, 298]]}})")
                    .findings,
                IsEmpty());
}

}  // namespace
