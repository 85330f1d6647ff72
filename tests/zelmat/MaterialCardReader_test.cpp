#include "zelmat/MaterialCardReader.h"

#include <gmock/gmock.h>

#include "tests/zelmat/CardFile.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(MaterialCardReader, ReadsEveryTableOfACard) {
    const auto card = CardOf(R"json({
        "name": "S235", "description": "Plain steel.", "source": ["EN 1993-1-1:2005", "EN 10025-2"],
        "units": {"stress": "Pa", "length": "m", "temperature": "K", "density": "kg/m3",
                  "thermal_expansion": "1/K", "conductivity": "W/(m K)", "specific_heat": "J/(kg K)"},
        "elastic": {"temperature_dependent": true, "columns": ["youngs_modulus", "poissons_ratio", "temperature"],
                    "rows": [[210e9, 0.3, 293.15],
                             [189e9, 0.3, 473.15]], "source": "3.2.6"},
        "density": {"temperature_dependent": false, "columns": ["density"], "rows": [[7850]]}
    })json");

    EXPECT_EQ(card.name, "S235");
    EXPECT_EQ(card.description, "Plain steel.");
    EXPECT_THAT(card.sources, ElementsAre("EN 1993-1-1:2005", "EN 10025-2"));
    EXPECT_FALSE(card.illustrative);
    EXPECT_THAT(card.notShown, IsEmpty());

    ASSERT_EQ(card.tables.size(), 2u);
    EXPECT_EQ(card.tables[0].block->name, "elastic");
    EXPECT_TRUE(card.tables[0].temperatureDependent);
    EXPECT_THAT(card.tables[0].rows,
                ElementsAre(ElementsAre(210e9, 0.3, 293.15), ElementsAre(189e9, 0.3, 473.15)));
    EXPECT_EQ(card.tables[0].source, "3.2.6");
    EXPECT_EQ(card.tables[0].line, 6);

    EXPECT_EQ(card.tables[1].block->name, "density");
    EXPECT_FALSE(card.tables[1].temperatureDependent);
    EXPECT_THAT(card.tables[1].rows, ElementsAre(ElementsAre(7850.0)));
    EXPECT_EQ(card.tables[1].referenceTemperature, std::nullopt);
}

TEST(MaterialCardReader, GoesByTheNamesOfTheColumnsNotTheirOrder) {
    const auto card = CardOf(R"({"name": "x", "elastic": {"temperature_dependent": true,
        "columns": ["temperature", "poissons_ratio", "youngs_modulus"], "rows": [[293.15, 0.3, 210e9]]}})");

    ASSERT_EQ(card.tables.size(), 1u);
    EXPECT_THAT(card.tables[0].rows, ElementsAre(ElementsAre(210e9, 0.3, 293.15)));
}

TEST(MaterialCardReader, ReadsTheReferenceTemperatureOfThermalExpansion) {
    const auto card = CardOf(R"({"name": "x", "thermal_expansion": {"temperature_dependent": false,
        "columns": ["thermal_expansion"], "rows": [[1.2e-5]], "reference_temperature": 293.15, "kind": "mean"}})");

    ASSERT_EQ(card.tables.size(), 1u);
    EXPECT_EQ(card.tables[0].referenceTemperature, 293.15);
}

TEST(MaterialCardReader, TakesASingleTextAsTheSource) {
    EXPECT_THAT(CardOf(R"({"name": "x", "source": "Handbook"})").sources, ElementsAre("Handbook"));
}

TEST(MaterialCardReader, KeepsTheBlocksThatAreNotShownApart) {
    const auto card = CardOf(R"({"name": "x", "illustrative": true, "gasket": {}, "hyperelastic": [],
        "strength": {"f_ck": 3e7}, "test_data": {},
        "plastic": {"temperature_dependent": false, "hardening": "johnson-cook",
                    "columns": ["A", "B", "n", "m", "melting_temperature", "transition_temperature"],
                    "rows": [[1e8, 2e8, 0.3, 1, 1700, 298]]}})");

    std::vector<std::string> names;
    for (const auto* block : card.notShown) names.push_back(block->name);
    EXPECT_THAT(names, ElementsAre("plastic", "hyperelastic", "gasket", "test_data", "strength"));
    EXPECT_THAT(card.tables, IsEmpty());
    EXPECT_TRUE(card.illustrative);
}

TEST(MaterialCardReader, WantsATemperatureInEveryPlasticCurve) {
    EXPECT_THAT(
        FindingsOf(R"({"name": "x", "plastic": {"temperature_dependent": false, "hardening": "kinematic",
        "columns": ["yield_stress", "plastic_strain", "temperature"], "rows": [[235e6, 0, 293.15]]}})"),
        IsEmpty());
    EXPECT_THAT(
        FindingsOf(R"({"name": "x", "plastic": {"temperature_dependent": false, "hardening": "isotropic",
        "columns": ["yield_stress", "plastic_strain"], "rows": [[235e6, 0]]}})"),
        ElementsAre("card.json:2: error[temperature-column]: plastic with isotropic hardening needs a "
                    "temperature column (expected yield_stress, plastic_strain, temperature)"));
}

TEST(MaterialCardReader, RefusesAFileThatIsNotThere) {
    zelmat::Findings findings;
    EXPECT_FALSE(zelmat::MaterialCardReader(findings).Read("no/such/card.json"));

    ASSERT_EQ(findings.All().size(), 1u);
    EXPECT_EQ(zelmat::FindingLine(findings.All()[0]),
              "no/such/card.json: error[unreadable]: cannot be read: No such file or directory");
    EXPECT_EQ(findings.Exit(), 3);
}

TEST(MaterialCardReader, RefusesAFolder) {
    zelmat::Findings findings;
    EXPECT_FALSE(zelmat::MaterialCardReader(findings).Read("/"));

    ASSERT_EQ(findings.All().size(), 1u);
    EXPECT_EQ(zelmat::FindingLine(findings.All()[0]), "/: error[unreadable]: cannot be read: Is a directory");
    EXPECT_EQ(findings.Exit(), 3);
}

TEST(MaterialCardReader, NamesTheLineAndColumnOfBrokenJson) {
    EXPECT_THAT(FindingsOf("{\n  \"name\": \"x\",\n  \"density\": {,}\n}\n"),
                ElementsAre(testing::StartsWith("card.json:3: error[broken-json]: syntax error")));
    EXPECT_THAT(FindingsOf("{\n  \"name\": \"x\",\n  \"density\": {,}\n}\n"),
                ElementsAre(testing::EndsWith("(column 15)")));
    EXPECT_THAT(FindingsOf(""), ElementsAre(testing::StartsWith("card.json:1: error[broken-json]: ")));
}

TEST(MaterialCardReader, RefusesNaNAndInfinityAsBareWords) {
    for (const char* word : {"NaN", "Infinity", "-Infinity", "nan"}) {
        const std::string text = std::string(R"({"name": "x", "density": {"temperature_dependent": false,
"columns": ["density"],
"rows": [[)") + word + "]]}}";
        EXPECT_THAT(FindingsOf(text), ElementsAre(testing::StartsWith("card.json:3: error[broken-json]: ")))
            << word;
    }
}

TEST(MaterialCardReader, RefusesANumberTooLargeForADouble) {
    EXPECT_THAT(FindingsOf("{\"name\": \"x\",\n\"density\": 1e999}"),
                ElementsAre(testing::StartsWith("card.json:2: error[broken-json]: ")));
}

TEST(MaterialCardReader, RefusesAKeyGivenTwice) {
    EXPECT_THAT(
        FindingsOf("{\"name\": \"x\",\n\"name\": \"y\"}"),
        ElementsAre(testing::StartsWith("card.json:2: error[broken-json]: the key \"name\" is given twice")));
}

TEST(MaterialCardReader, RefusesACardThatIsNoObject) {
    EXPECT_THAT(
        FindingsOf("[1, 2]"),
        ElementsAre("card.json:1: error[wrong-type]: the card is not an object in braces (got [1,2])"));
}

TEST(MaterialCardReader, WantsAName) {
    EXPECT_THAT(FindingsOf("\n{}"),
                ElementsAre("card.json:2: error[missing-key]: the card lacks the key \"name\""));
    EXPECT_THAT(FindingsOf("{\n\"name\": 12}"),
                ElementsAre("card.json:2: error[wrong-type]: name is not a text (got 12)"));
}

TEST(MaterialCardReader, ChecksTheTypesOfTheCardsOwnKeys) {
    EXPECT_THAT(FindingsOf("{\"name\": \"x\",\n\"description\": [],\n\"source\": [\"a\",\n7],\n"
                           "\"illustrative\": \"yes\",\n\"units\": \"SI\"}"),
                ElementsAre("card.json:2: error[wrong-type]: description is not a text (got [])",
                            "card.json:4: error[wrong-type]: source[1] is not a text (got 7)",
                            "card.json:5: error[wrong-type]: illustrative is not true or false (got \"yes\")",
                            "card.json:6: error[wrong-type]: units is not an object in braces (got \"SI\")"));
}

TEST(MaterialCardReader, CutsALongValueInAMessage) {
    EXPECT_THAT(FindingsOf("{\"name\": [\"0123456789012345678901234567890123456789\"]}"),
                ElementsAre("card.json:1: error[wrong-type]: name is not a text "
                            "(got [\"01234567890123456789012345678901234567...)"));
}

TEST(MaterialCardReader, AcceptsSiUnitsOnly) {
    EXPECT_THAT(
        FindingsOf(
            "{\"name\": \"x\", \"units\": {\n\"stress\": \"MPa\",\n\"force\": \"N\",\n\"density\": 1}}"),
        ElementsAre("card.json:2: error[wrong-unit]: stress is given in \"MPa\" (expected Pa, convert the "
                    "values)",
                    "card.json:3: error[unknown-unit]: there is no quantity \"force\" (known: stress, "
                    "length, temperature, density, thermal_expansion, conductivity, specific_heat)",
                    "card.json:4: error[wrong-type]: units.density is not a text (got 1)"));
}

TEST(MaterialCardReader, NamesAnUnknownBlock) {
    EXPECT_THAT(
        FindingsOf("{\"name\": \"x\",\n\"elastc\": {}}"),
        ElementsAre("card.json:2: error[unknown-block]: there is no block \"elastc\" (known: elastic, "
                    "plastic, density, thermal_expansion, conductivity, specific_heat, hyperelastic, "
                    "gasket, test_data, strength)"));
}

TEST(MaterialCardReader, TellsAllMistakesInTheOrderOfTheLines) {
    EXPECT_THAT(
        FindingsOf("{\n\"specific_heat\": 1,\n\"xyz\": 2,\n\"elastic\": 3,\n\"name\": 4}"),
        ElementsAre("card.json:2: error[wrong-type]: specific_heat is not an object in braces (got 1)",
                    testing::StartsWith("card.json:3: error[unknown-block]: "),
                    "card.json:4: error[wrong-type]: elastic is not an object in braces (got 3)",
                    "card.json:5: error[wrong-type]: name is not a text (got 4)"));
}

}  // namespace
