#include "zelmat/cards/CardTableReader.h"

#include <gmock/gmock.h>

#include "tests/zelmat/support/CardFile.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A card whose density block, from line 2 on, is the given text.
std::vector<std::string> FindingsOfDensity(const std::string& block) {
    return FindingsOf("{\"name\": \"x\", \"density\":\n" + block + "}");
}

/// A card whose elastic block, from line 2 on, is the given text.
std::vector<std::string> FindingsOfElastic(const std::string& block) {
    return FindingsOf("{\"name\": \"x\", \"elastic\":\n" + block + "}");
}

TEST(CardTableReader, AcceptsAPlainTable) {
    EXPECT_THAT(
        FindingsOfDensity(R"({"temperature_dependent": false, "columns": ["density"], "rows": [[7850]]})"),
        IsEmpty());
}

TEST(CardTableReader, WantsFlagColumnsAndRows) {
    EXPECT_THAT(
        FindingsOfDensity("{}"),
        ElementsAre("card.json:2: error[missing-key]: density lacks the key \"temperature_dependent\"",
                    "card.json:2: error[missing-key]: density lacks the key \"columns\""));
    EXPECT_THAT(FindingsOfDensity(R"({"temperature_dependent": false, "columns": ["density"]})"),
                ElementsAre("card.json:2: error[missing-key]: density lacks the key \"rows\""));
}

TEST(CardTableReader, NamesAKeyThatNothingReads) {
    EXPECT_THAT(
        FindingsOfDensity(R"({"temperature_dependent": false, "columns": ["density"], "rows": [[7850]],
"reference_temprature": 293})"),
        ElementsAre(
            "card.json:3: warning[unknown-key]: density has no key \"reference_temprature\" "
            "(known: temperature_dependent, columns, rows, source, it is kept, and no behavior uses it)"));
}

TEST(CardTableReader, ChecksTheTypesOfTheBlocksKeys) {
    EXPECT_THAT(
        FindingsOfDensity(R"({"temperature_dependent": "no",
"columns": "density",
"rows": [[7850]],
"source": 4})"),
        ElementsAre("card.json:2: error[wrong-type]: density.temperature_dependent is not true or false "
                    "(got \"no\")",
                    "card.json:3: error[wrong-type]: density.columns is not a list (got \"density\")",
                    "card.json:5: error[wrong-type]: density.source is not a text (got 4)"));
    EXPECT_THAT(FindingsOfDensity(R"({"temperature_dependent": false, "columns": ["density"],
"rows": {}})"),
                ElementsAre("card.json:3: error[wrong-type]: density.rows is not a list (got {})"));
    EXPECT_THAT(FindingsOfDensity(R"({"temperature_dependent": false, "columns": ["density"], "rows": [
[7850],
7900]})"),
                ElementsAre("card.json:4: error[wrong-type]: density.rows[1] is not a list (got 7900)"));
}

TEST(CardTableReader, NamesAnUnknownColumnOnce) {
    EXPECT_THAT(FindingsOfElastic(R"({"temperature_dependent": false,
"columns": ["youngs_modulus",
"poisson"],
"rows": [[210e9, 0.3]]})"),
                ElementsAre("card.json:4: error[unknown-column]: elastic has no column \"poisson\" "
                            "(expected youngs_modulus, poissons_ratio)"));
}

TEST(CardTableReader, NamesAMissingColumn) {
    EXPECT_THAT(FindingsOfElastic(R"({"temperature_dependent": false,
"columns": ["youngs_modulus"],
"rows": [[210e9]]})"),
                ElementsAre("card.json:3: error[missing-column]: elastic lacks the column \"poissons_ratio\" "
                            "(expected youngs_modulus, poissons_ratio)"));
}

TEST(CardTableReader, NamesARepeatedColumn) {
    EXPECT_THAT(FindingsOfDensity(R"({"temperature_dependent": false,
"columns": ["density", "density"], "rows": [[7850, 7850]]})"),
                ElementsAre("card.json:3: error[repeated-column]: density has the column \"density\" twice"));
}

TEST(CardTableReader, WantsATemperatureColumnExactlyWhenTemperatureDependent) {
    EXPECT_THAT(
        FindingsOfDensity(R"({"temperature_dependent": true,
"columns": ["density"], "rows": [[7850]]})"),
        ElementsAre("card.json:3: error[temperature-column]: density is temperature dependent but has no "
                    "temperature column (expected density, temperature)"));
    EXPECT_THAT(
        FindingsOfDensity(R"({"temperature_dependent": false,
"columns": ["density", "temperature"], "rows": [[7850, 293.15]]})"),
        ElementsAre("card.json:3: error[temperature-column]: density is not temperature dependent but has "
                    "a temperature column (expected density)"));
}

TEST(CardTableReader, TakesNoTemperatureColumnForJohnsonCook) {
    EXPECT_THAT(
        FindingsOf(R"({"name": "x", "plastic": {"temperature_dependent": true, "hardening": "johnson-cook",
"columns": ["A", "B", "n", "m", "melting_temperature", "transition_temperature", "temperature"],
"rows": [[1, 2, 3, 4, 5, 6, 7]]}})"),
        ElementsAre("card.json:2: error[temperature-column]: plastic with johnson-cook hardening takes no "
                    "temperature column (expected A, B, n, m, melting_temperature, transition_temperature)"));
}

TEST(CardTableReader, NamesAnUnknownHardening) {
    EXPECT_THAT(
        FindingsOf(R"({"name": "x", "plastic": {"temperature_dependent": false,
"hardening": "mixed",
"columns": ["yield_stress", "plastic_strain", "temperature"], "rows": [[235e6, 0, 293]]}})"),
        ElementsAre("card.json:2: error[unknown-hardening]: there is no hardening \"mixed\" (expected one "
                    "of: isotropic, kinematic, johnson-cook)"));
    EXPECT_THAT(FindingsOf(R"({"name": "x",
"plastic": {"temperature_dependent": false, "columns": ["yield_stress"], "rows": [[235e6]]}})"),
                ElementsAre("card.json:2: error[missing-key]: plastic lacks the key \"hardening\""));
}

TEST(CardTableReader, RefusesATableWithoutRows) {
    EXPECT_THAT(FindingsOfDensity(R"({"temperature_dependent": false, "columns": ["density"],
"rows": []})"),
                ElementsAre("card.json:3: error[empty-rows]: density has no rows (leave it out if it is not "
                            "defined)"));
}

TEST(CardTableReader, NamesEveryRaggedRow) {
    EXPECT_THAT(
        FindingsOfElastic(R"({"temperature_dependent": false, "columns": ["youngs_modulus", "poissons_ratio"],
"rows": [
[210e9, 0.3],
[210e9],
[210e9, 0.3, 293.15]]})"),
        ElementsAre("card.json:5: error[ragged-row]: row 2 of elastic has 1 value (expected 2: "
                    "youngs_modulus, poissons_ratio)",
                    "card.json:6: error[ragged-row]: row 3 of elastic has 3 values (expected 2: "
                    "youngs_modulus, poissons_ratio)"));
}

TEST(CardTableReader, WantsNumbersInTheRows) {
    EXPECT_THAT(
        FindingsOfDensity(R"({"temperature_dependent": false, "columns": ["density"], "rows": [
["7850"],
[null],
["NaN"],
["Infinity"],
[true],
[[7850]]]})"),
        ElementsAre("card.json:3: error[not-a-number]: density.rows[0][0] is not a number (got \"7850\", "
                    "expected a number without quotes)",
                    "card.json:4: error[not-a-number]: density.rows[1][0] is not a number (got null, "
                    "expected a number without quotes)",
                    "card.json:5: error[not-a-number]: density.rows[2][0] is not a number (got \"NaN\", "
                    "expected a number without quotes)",
                    "card.json:6: error[not-a-number]: density.rows[3][0] is not a number (got "
                    "\"Infinity\", expected a number without quotes)",
                    "card.json:7: error[not-a-number]: density.rows[4][0] is not a number (got true, "
                    "expected a number without quotes)",
                    "card.json:8: error[not-a-number]: density.rows[5][0] is not a number (got [7850], "
                    "expected a number without quotes)"));
}

TEST(CardTableReader, TakesAReferenceTemperatureOfThermalExpansionThatIsATemperature) {
    EXPECT_THAT(FindingsOf(R"({"name": "x", "thermal_expansion": {"temperature_dependent": false,
"columns": ["thermal_expansion"], "rows": [[1.2e-5]]}})"),
                testing::IsEmpty());
    EXPECT_THAT(
        FindingsOf(R"({"name": "x", "thermal_expansion": {"temperature_dependent": false,
"columns": ["thermal_expansion"], "rows": [[1.2e-5]], "reference_temperature": "20 m"}})"),
        ElementsAre("card.json:2: error[wrong-value]: thermal_expansion.reference_temperature: "
                    "temperature: the unit 'm' measures something else; expected K, degC, degF or degR"));
}

TEST(CardTableReader, TakesOneRowOnlyForJohnsonCook) {
    EXPECT_THAT(
        FindingsOf(R"({"name": "x", "plastic": {"temperature_dependent": false, "hardening": "johnson-cook",
"columns": ["A", "B", "n", "m", "melting_temperature", "transition_temperature"],
"rows": [[9e7, 2.92e8, 0.31, 1.09, 1356, 298],
[1, 2, 3, 4, 5, 6]]}})"),
        ElementsAre(
            "card.json:4: error[surplus-rows]: plastic with johnson-cook hardening takes one row (got "
            "2, the others would be lost)"));
}

TEST(CardTableReader, NamesATableInsideABlockByBoth) {
    EXPECT_THAT(
        FindingsOf(R"({"name": "x", "gasket": {"loading": {"temperature_dependent": false,
"columns": ["pressure", "closure", "temperature"],
"rows": [[0, 0, 293.15],
[1e6, 1e-5]],
"colour": "grey"}}})"),
        ElementsAre("card.json:4: error[ragged-row]: row 2 of gasket.loading has 2 values (expected "
                    "3: pressure, closure, temperature)",
                    "card.json:5: warning[unknown-key]: gasket.loading has no key \"colour\" (known: "
                    "temperature_dependent, columns, rows, source, it is kept, and no behavior uses it)"));
}

}  // namespace
