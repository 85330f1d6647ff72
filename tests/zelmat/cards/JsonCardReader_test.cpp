#include "zelmat/cards/ReadCard.h"

#include <gmock/gmock.h>

#include "tests/zelmat/support/BehaviorBlocks.h"
#include "tests/zelmat/support/CardFile.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(JsonCardReader, ReadsEveryTableOfACard) {
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
    EXPECT_THAT(card.fits, IsEmpty());
    EXPECT_THAT(card.information, IsEmpty());

    ASSERT_EQ(card.blocks.size(), 2u);
    EXPECT_EQ(card.blocks[0].kind->name, "elastic");
    EXPECT_EQ(card.blocks[0].origin.Line(), 5);
    const zelmat::Table& elastic = card.blocks[0].tables.front();
    EXPECT_TRUE(elastic.temperatureDependent);
    EXPECT_THAT(Rows(elastic), ElementsAre(ElementsAre(210e9, 0.3, 293.15), ElementsAre(189e9, 0.3, 473.15)));
    EXPECT_EQ(elastic.source, "3.2.6");
    EXPECT_EQ(elastic.origin.Line(), 6);
    EXPECT_EQ(elastic.origin.Line(0), 6);
    EXPECT_EQ(elastic.origin.Line(1), 7);

    EXPECT_EQ(card.blocks[1].kind->name, "density");
    const zelmat::Table& density = card.blocks[1].tables.front();
    EXPECT_FALSE(density.temperatureDependent);
    EXPECT_THAT(Rows(density), ElementsAre(ElementsAre(7850.0)));
}

TEST(JsonCardReader, GoesByTheNamesOfTheColumnsNotTheirOrder) {
    const auto card = CardOf(R"({"name": "x", "elastic": {"temperature_dependent": true,
        "columns": ["temperature", "poissons_ratio", "youngs_modulus"], "rows": [[293.15, 0.3, 210e9]]}})");

    ASSERT_EQ(card.blocks.size(), 1u);
    EXPECT_THAT(Rows(card.blocks[0].tables[0]), ElementsAre(ElementsAre(210e9, 0.3, 293.15)));
}

TEST(JsonCardReader, ReadsTheReferenceTemperatureOfThermalExpansion) {
    const auto card = CardOf(R"({"name": "x", "thermal_expansion": {"temperature_dependent": false,
        "columns": ["thermal_expansion"], "rows": [[1.2e-5]], "reference_temperature": 293.15, "kind": "mean"}})");

    ASSERT_EQ(card.blocks.size(), 1u);
    EXPECT_EQ(card.blocks[0].values.Get<double>("reference_temperature"), 293.15);
    EXPECT_EQ(card.blocks[0].values.Get<std::string>("kind"), "mean");
}

TEST(JsonCardReader, TakesASingleTextAsTheSource) {
    EXPECT_THAT(CardOf(R"({"name": "x", "source": "Handbook"})").sources, ElementsAre("Handbook"));
}

TEST(JsonCardReader, KeepsWhatNoBehaviorUsesApart) {
    const auto card = CardOf(R"({"name": "x", "illustrative": true, "strength": {"f_ck": 3e7},
        "test_data": {"note": "room temperature",
            "uniaxial": {"columns": ["nominal_stress", "stretch"], "rows": [[25500, 1.02], [134400, 1.125]]}}})");

    EXPECT_TRUE(card.illustrative);
    EXPECT_THAT(card.blocks, IsEmpty());
    ASSERT_EQ(card.information.size(), 2u);
    EXPECT_EQ(card.information[0].kind->name, "test_data");
    ASSERT_EQ(card.information[0].tables.size(), 1u);
    EXPECT_EQ(card.information[0].tables[0].kind->name, "uniaxial");
    EXPECT_THAT(Rows(card.information[0].tables[0]),
                ElementsAre(ElementsAre(1.02, 25500.0), ElementsAre(1.125, 134400.0)));
    EXPECT_EQ(card.information[1].kind->name, "strength");
}

TEST(JsonCardReader, KeepsTheHyperelasticFitsInTheirOrder) {
    const auto card = CardOf(R"({"name": "x", "hyperelastic": [
        {"model": "NEO_HOOKE", "order": 1, "temperature_dependent": false, "columns": ["C10"], "rows": [[195000]]},
        {"model": "OGDEN", "order": 2, "temperature_dependent": true, "variant": "cold",
         "columns": ["temperature", "alpha_1", "mu_1", "mu_2", "alpha_2", "D2"],
         "rows": [[293.15, 1.3, 630000, 1200, 5, 2e-9]]}]})");

    EXPECT_THAT(card.blocks, IsEmpty());
    ASSERT_EQ(card.fits.size(), 2u);
    EXPECT_EQ(card.fits[0].values.Get<std::string>("model"), "NEO_HOOKE");
    EXPECT_THAT(Rows(card.fits[0].tables[0]), ElementsAre(ElementsAre(195000.0, 0.0)));
    EXPECT_EQ(card.fits[1].values.Get<int>("order"), 2);
    EXPECT_THAT(Rows(card.fits[1].tables[0]),
                ElementsAre(ElementsAre(630000.0, 1.3, 1200.0, 5.0, 0.0, 2e-9, 293.15)));
}

TEST(JsonCardReader, WantsATemperatureInEveryPlasticCurve) {
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

TEST(JsonCardReader, RefusesAFileThatIsNotThere) {
    zelmat::Findings findings;
    EXPECT_FALSE(zelmat::ReadCard("no/such/card.json", findings));

    ASSERT_EQ(findings.All().size(), 1u);
    EXPECT_EQ(zelmat::FindingLine(findings.All()[0]),
              "no/such/card.json: error[unreadable]: cannot be read: No such file or directory");
    EXPECT_EQ(findings.Exit(), 3);
}

TEST(JsonCardReader, RefusesAFolder) {
    zelmat::Findings findings;
    EXPECT_FALSE(zelmat::ReadCard("/", findings));

    ASSERT_EQ(findings.All().size(), 1u);
    EXPECT_EQ(zelmat::FindingLine(findings.All()[0]), "/: error[unreadable]: cannot be read: Is a directory");
    EXPECT_EQ(findings.Exit(), 3);
}

TEST(JsonCardReader, NamesTheLineAndColumnOfBrokenJson) {
    EXPECT_THAT(FindingsOf("{\n  \"name\": \"x\",\n  \"density\": {,}\n}\n"),
                ElementsAre(testing::StartsWith("card.json:3: error[broken-json]: syntax error")));
    EXPECT_THAT(FindingsOf("{\n  \"name\": \"x\",\n  \"density\": {,}\n}\n"),
                ElementsAre(testing::EndsWith("(column 15)")));
    EXPECT_THAT(FindingsOf(""), ElementsAre(testing::StartsWith("card.json:1: error[broken-json]: ")));
}

TEST(JsonCardReader, RefusesNaNAndInfinityAsBareWords) {
    for (const char* word : {"NaN", "Infinity", "-Infinity", "nan"}) {
        const std::string text = std::string(R"({"name": "x", "density": {"temperature_dependent": false,
"columns": ["density"],
"rows": [[)") + word + "]]}}";
        EXPECT_THAT(FindingsOf(text), ElementsAre(testing::StartsWith("card.json:3: error[broken-json]: ")))
            << word;
    }
}

TEST(JsonCardReader, RefusesANumberTooLargeForADouble) {
    EXPECT_THAT(FindingsOf("{\"name\": \"x\",\n\"density\": 1e999}"),
                ElementsAre(testing::StartsWith("card.json:2: error[broken-json]: ")));
}

TEST(JsonCardReader, RefusesAKeyGivenTwice) {
    EXPECT_THAT(
        FindingsOf("{\"name\": \"x\",\n\"name\": \"y\"}"),
        ElementsAre(testing::StartsWith("card.json:2: error[broken-json]: the key \"name\" is given twice")));
}

TEST(JsonCardReader, RefusesACardThatIsNoObject) {
    EXPECT_THAT(FindingsOf("12"),
                ElementsAre("card.json:1: error[wrong-type]: the card is not an object in braces (got 12)"));
    EXPECT_THAT(FindingsOf("[{\"name\": \"x\"},\n2]"),
                ElementsAre("card.json:2: error[wrong-type]: [1] is not an object in braces (got 2)"));
    EXPECT_THAT(FindingsOf("[]"), ElementsAre("card.json:1: error[empty-list]: the card is an empty list "
                                              "(expected the cards of materials)"));
}

TEST(JsonCardReader, WantsAName) {
    EXPECT_THAT(FindingsOf("\n{}"),
                ElementsAre("card.json:2: error[missing-key]: the card lacks the key \"name\""));
    EXPECT_THAT(FindingsOf("{\n\"name\": 12}"),
                ElementsAre("card.json:2: error[wrong-type]: name is not a text (got 12)"));
}

TEST(JsonCardReader, ChecksTheTypesOfTheCardsOwnKeys) {
    EXPECT_THAT(FindingsOf("{\"name\": \"x\",\n\"description\": [],\n\"source\": [\"a\",\n7],\n"
                           "\"illustrative\": \"yes\",\n\"units\": \"SI\"}"),
                ElementsAre("card.json:2: error[wrong-type]: description is not a text (got [])",
                            "card.json:4: error[wrong-type]: source[1] is not a text (got 7)",
                            "card.json:5: error[wrong-type]: illustrative is not true or false (got \"yes\")",
                            "card.json:6: error[wrong-type]: units is not an object in braces (got \"SI\")"));
}

TEST(JsonCardReader, CutsALongValueInAMessage) {
    EXPECT_THAT(FindingsOf("{\"name\": [\"0123456789012345678901234567890123456789\"]}"),
                ElementsAre("card.json:1: error[wrong-type]: name is not a text "
                            "(got [\"01234567890123456789012345678901234567...)"));
}

TEST(JsonCardReader, NamesAnUnknownBlock) {
    EXPECT_THAT(
        FindingsOf("{\"name\": \"x\",\n\"elastc\": {}}"),
        ElementsAre("card.json:2: warning[unknown-block]: there is no block \"elastc\" (known: " +
                    BehaviorBlocksBut({}) +
                    ", test_data, strength, other_properties, fcmat, it is kept, and no behavior uses it)"));
}

TEST(JsonCardReader, TellsAllMistakesInTheOrderOfTheLines) {
    EXPECT_THAT(
        FindingsOf("{\n\"specific_heat\": true,\n\"xyz\": 2,\n\"elastic\": 3,\n\"name\": 4}"),
        ElementsAre("card.json:2: error[wrong-type]: specific_heat is not an object in braces (got true)",
                    testing::StartsWith("card.json:3: warning[unknown-block]: "),
                    "card.json:4: error[wrong-type]: elastic is not an object in braces (got 3)",
                    "card.json:5: error[wrong-type]: name is not a text (got 4)"));
}

TEST(JsonCardReader, ReadsWhatIsSaidOfTheMaterialAsAWhole) {
    const auto card =
        CardOf(R"({"name": "x", "class": "metal", "notes": ["a", "b"], "heat_generation": true})");

    EXPECT_EQ(card.materialClass, "metal");
    EXPECT_THAT(card.notes, ElementsAre("a", "b"));
    EXPECT_EQ(card.heatGeneration, true);
    EXPECT_EQ(CardOf(R"({"name": "x"})").heatGeneration, std::nullopt);
}

TEST(JsonCardReader, KeepsWhatItHasNoMeaningFor) {
    const CardFile file(R"({"name": "x", "strength": {"f_ck": 3e7}, "dielectric": [4.7, {"tan": 0.02}],
"gasket": {"anchors": {"seal": 1}, "loading": {"temperature_dependent": false,
"columns": ["pressure", "closure", "temperature"], "rows": [[0, 0, 293.15]]}}})");
    zelmat::Findings findings;
    const auto card = zelmat::ReadCard(file.Path(), findings);

    ASSERT_TRUE(card);
    ASSERT_EQ(card->kept.size(), 1u);
    EXPECT_EQ(card->kept[0].name, "dielectric");
    EXPECT_EQ(card->kept[0].json, R"([4.7,{"tan":0.02}])");
    ASSERT_EQ(card->information.size(), 1u);
    EXPECT_EQ(card->information[0].kept.at(0).json, R"({"f_ck":30000000.0})");
    EXPECT_EQ(card->Find("gasket")->kept.at(0).name, "anchors");
    EXPECT_EQ(card->Find("gasket")->kept.at(0).json, R"({"seal":1})");
    EXPECT_EQ(findings.Exit(), 0);
}

TEST(JsonCardReader, IgnoresCommentsAndKeepsUnknownKeysUnderTheirName) {
    const CardFile file(R"({"name": "x", "//": "a note", "// density": "kg/m3", "density": {"//": [1],
"temperature_dependent": false, "columns": ["density"], "rows": [[7850]],
"tolerance": {"percent": 2}}})");
    zelmat::Findings findings;
    const auto card = zelmat::ReadCard(file.Path(), findings);

    ASSERT_TRUE(card);
    EXPECT_THAT(card->kept, IsEmpty());
    ASSERT_EQ(card->Find("density")->kept.size(), 1u);
    EXPECT_EQ(card->Find("density")->kept[0].name, "tolerance");
    EXPECT_EQ(card->Find("density")->kept[0].json, R"({"percent":2})");
    ASSERT_EQ(findings.All().size(), 1u);
    EXPECT_EQ(findings.All()[0].kind, zelmat::FindingKind::WARNING);
}

TEST(JsonCardReader, ReadsVersionOneAndRefusesANewerOne) {
    EXPECT_THAT(FindingsOf(R"({"name": "x", "version": 1})"), IsEmpty());
    EXPECT_THAT(
        FindingsOf("{\"name\": \"x\",\n\"version\": 2, \"elastic\": 7}"),
        ElementsAre("card.json:2: error[newer-version]: the card is of version 2 (this program reads up "
                    "to version 1)"));
    EXPECT_THAT(FindingsOf(R"({"name": "x", "version": "1"})"),
                ElementsAre("card.json:1: error[wrong-type]: version is not a whole number (got \"1\")"));
    EXPECT_THAT(FindingsOf(R"({"name": "x", "version": 0})"),
                ElementsAre("card.json:1: error[out-of-range]: version is 0 (expected 1 to 1)"));
}

TEST(ReadCards, ReadsAListOfMaterialsAndLeavesOutThoseWithMistakes) {
    const CardFile file(R"([{"name": "a"}, {"name": "b", "density": true},
{"name": "c"}])");
    zelmat::Findings findings;
    const auto cards = zelmat::ReadCards(file.Path(), findings);

    ASSERT_EQ(cards.size(), 2u);
    EXPECT_EQ(cards[0].name, "a");
    EXPECT_EQ(cards[1].name, "c");
    ASSERT_EQ(findings.All().size(), 1u);
    EXPECT_EQ(findings.All()[0].code, "wrong-type");
}

TEST(ReadCards, WhereOneMaterialIsWantedNamesThoseOfACardWithSeveral) {
    EXPECT_THAT(
        FindingsOf(R"([{"name": "a"}, {"name": "b"}])"),
        ElementsAre("card.json: error[several-materials]: the card holds 2 materials (expected one, has: "
                    "a, b)"));
}

}  // namespace
