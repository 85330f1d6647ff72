#include "zelmat/cards/CardBlockReader.h"

#include <gmock/gmock.h>

#include "tests/zelmat/support/CardFile.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A card with one hyperelastic fit, from line 2 on the given text.
std::vector<std::string> FindingsOfFit(const std::string& fit) {
    return FindingsOf("{\"name\": \"x\", \"hyperelastic\": [\n" + fit + "]}");
}

/// A card whose gasket block has a good loading table on line 1 and the given text from line 2 on.
std::vector<std::string> FindingsOfGasket(const std::string& rest) {
    return FindingsOf(R"({"name": "x", "gasket": {"loading": {"temperature_dependent": false, "columns": )"
                      R"(["pressure", "closure", "temperature"], "rows": [[0, 0, 293.15]]},)"
                      "\n" +
                      rest + "}}");
}

TEST(CardBlockReader, NamesAModelThatThereIsNot) {
    EXPECT_THAT(
        FindingsOfFit(R"({"model": "MARLOW", "order": 1, "temperature_dependent": false,
"columns": ["C10"], "rows": [[195000]]})"),
        ElementsAre("card.json:2: error[unknown-model]: there is no model \"MARLOW\" (expected one of: "
                    "ARRUDA_BOYCE, MOONEY_RIVLIN, NEO_HOOKE, OGDEN, POLYNOMIAL, REDUCED_POLYNOMIAL, "
                    "VAN_DER_WAALS, YEOH)"));
}

TEST(CardBlockReader, HoldsTheColumnsAgainstModelAndOrder) {
    EXPECT_THAT(
        FindingsOfFit(R"({"model": "OGDEN", "order": 2, "temperature_dependent": false,
"columns": ["mu_1", "alpha_1"], "rows": [[630000, 1.3]]})"),
        ElementsAre(
            "card.json:3: error[missing-column]: hyperelastic[0] with OGDEN of order 2 lacks the column "
            "\"mu_2\" (expected mu_1, alpha_1, mu_2, alpha_2, D1 (or not), D2 (or not))",
            "card.json:3: error[missing-column]: hyperelastic[0] with OGDEN of order 2 lacks the column "
            "\"alpha_2\" (expected mu_1, alpha_1, mu_2, alpha_2, D1 (or not), D2 (or not))"));
    EXPECT_THAT(
        FindingsOfFit(R"({"model": "NEO_HOOKE", "order": 1, "temperature_dependent": false,
"columns": ["C10", "C01"], "rows": [[1, 2]]})"),
        ElementsAre("card.json:3: error[unknown-column]: hyperelastic[0] with NEO_HOOKE of order 1 has no "
                    "column \"C01\" (expected C10, D1 (or not))"));
}

TEST(CardBlockReader, TakesTheOrderFromTheCoefficientsWhereNobodySaysIt) {
    const auto order = [](const std::string& fit) {
        return StoredCard(R"({"name": "x", "hyperelastic": [)" + fit + "]}")
            .Block("hyperelastic")
            .values.Get<int>("order");
    };
    EXPECT_EQ(order(R"({"model": "NEO_HOOKE", "C10": "0.2 MPa"})"), 1);
    EXPECT_EQ(order(R"({"model": "YEOH", "C10": "0.2 MPa", "C20": "-2 kPa", "C30": "50 Pa"})"), 3);
    EXPECT_EQ(
        order(R"({"model": "OGDEN", "mu_1": "0.3 MPa", "alpha_1": 1.5, "mu_2": "0.1 MPa", "alpha_2": -2})"),
        2);
    EXPECT_EQ(order(R"({"model": "OGDEN", "temperature_dependent": false,
        "columns": ["alpha_1", "mu_1 [MPa]"], "rows": [[2, 0.3]]})"),
              1);
    EXPECT_THAT(FindingsOfFit(R"({"model": "OGDEN", "temperature_dependent": false,
"columns": ["C10"], "rows": [[1]]})"),
                testing::Contains(testing::HasSubstr("error[missing-key]: hyperelastic[0] lacks the key "
                                                     "\"order\"")));
}

TEST(CardBlockReader, WantsAnOrderWithinItsBounds) {
    for (const char* order : {"0", "-1", "7", "10000000000"}) {
        EXPECT_THAT(FindingsOfFit(std::string(R"({"model": "OGDEN",
"order": )") + order + R"(, "temperature_dependent": false, "columns": ["mu_1"], "rows": [[1]]})"),
                    ElementsAre("card.json:3: error[out-of-range]: hyperelastic[0].order is " +
                                std::string(order) + " (expected 1 to 6)"));
    }
    EXPECT_THAT(FindingsOfFit(R"({"model": "OGDEN",
"order": 2.5, "temperature_dependent": false, "columns": ["mu_1"], "rows": [[1]]})"),
                ElementsAre("card.json:3: error[wrong-type]: hyperelastic[0].order is not a whole number "
                            "(got 2.5)"));
}

TEST(CardBlockReader, WantsModelAndOrder) {
    EXPECT_THAT(FindingsOfFit(R"({"temperature_dependent": false, "columns": ["C10"], "rows": [[1]]})"),
                ElementsAre("card.json:2: error[missing-key]: hyperelastic[0] lacks the key \"model\"",
                            "card.json:2: error[missing-key]: hyperelastic[0] lacks the key \"order\""));
}

TEST(CardBlockReader, WantsAListOfFits) {
    EXPECT_THAT(FindingsOf("{\"name\": \"x\",\n\"hyperelastic\": {}}"),
                ElementsAre("card.json:2: error[wrong-type]: hyperelastic is not a list (got {})"));
    EXPECT_THAT(FindingsOf("{\"name\": \"x\",\n\"hyperelastic\": []}"),
                ElementsAre("card.json:2: error[empty-list]: hyperelastic is an empty list (leave it out if "
                            "it is not defined)"));
    EXPECT_THAT(FindingsOfFit("7"),
                ElementsAre("card.json:2: error[wrong-type]: hyperelastic[0] is not an object in braces (got "
                            "7)"));
}

TEST(CardBlockReader, ChecksTheSettingsOfAGasket) {
    EXPECT_THAT(
        FindingsOfGasket(R"("yield_onset": {"method": "guess",
"relative_value": "0.1",
"values": 3},
"unloading": 1,
"anchors": [1, 2],
"behavior_type": true,
"thickness": 0.002)"),
        ElementsAre(
            "card.json:2: error[unknown-method]: there is no method \"guess\" (expected one of: "
            "relative, closure)",
            "card.json:3: error[not-a-number]: gasket.yield_onset.relative_value is not a number (got "
            "\"0.1\", expected a number without quotes)",
            "card.json:4: warning[unknown-key]: gasket.yield_onset has no key \"values\" (known: "
            "method, relative_value, closure_value, it is kept, and no behavior uses it)",
            "card.json:5: error[wrong-type]: gasket.unloading is not true or false (got 1)",
            "card.json:7: error[wrong-type]: gasket.behavior_type is not a whole number (got true)",
            "card.json:8: warning[unknown-key]: gasket has no key \"thickness\" (known: loading, "
            "unloading_elastic_plastic, unloading_damage, behavior_type, yield_onset, "
            "tensile_stiffness_factor, unloading, initial_thickness, illustrative, anchors, it is kept, and "
            "no behavior uses it)"));
    EXPECT_THAT(FindingsOfGasket(R"("yield_onset": "relative")"),
                ElementsAre("card.json:2: error[wrong-type]: gasket.yield_onset is not an object in braces "
                            "(got \"relative\")"));
}

TEST(CardBlockReader, WantsALoadingTableForAGasketAndNoOther) {
    EXPECT_THAT(FindingsOf("{\"name\": \"x\",\n\"gasket\": {}}"),
                ElementsAre("card.json:2: error[missing-key]: gasket lacks the key \"loading\""));
    EXPECT_THAT(FindingsOfGasket(R"("unloading": false)"), IsEmpty());
}

TEST(CardBlockReader, ChecksAUserMaterial) {
    EXPECT_THAT(FindingsOf(R"({"name": "x", "user_material": {"type": "MECHANICAL", "constants": [1, 2]}})"),
                IsEmpty());
    EXPECT_THAT(
        FindingsOf(R"({"name": "x", "user_material": {
"type": "mechanical",
"state_variables": -1,
"constants": [1, "2",
null]}})"),
        ElementsAre("card.json:2: error[unknown-type]: there is no type \"mechanical\" (expected one of: "
                    "MECHANICAL, THERMAL)",
                    "card.json:3: error[out-of-range]: user_material.state_variables is -1 (expected 0 to "
                    "1000000)",
                    "card.json:4: error[not-a-number]: user_material.constants[1] is not a number (got "
                    "\"2\", expected a number without quotes)",
                    "card.json:5: error[not-a-number]: user_material.constants[2] is not a number (got null, "
                    "expected a number without quotes)"));
    EXPECT_THAT(
        FindingsOf(R"({"name": "x",
"user_material": {"type": "THERMAL", "constants": {}}})"),
        ElementsAre("card.json:2: error[wrong-type]: user_material.constants is not a list (got {})"));
}

TEST(CardBlockReader, ChecksTheTestDataAlthoughNoBehaviorUsesThem) {
    EXPECT_THAT(FindingsOf(R"({"name": "x", "test_data": {"uniaxial": {"columns": ["stretch", "stress"],
"rows": [[1.02, 25500]]}}})"),
                ElementsAre("card.json:1: error[unknown-column]: test_data.uniaxial has no column \"stress\" "
                            "(expected stretch, nominal_stress)"));
}

}  // namespace
