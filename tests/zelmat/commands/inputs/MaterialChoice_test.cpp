#include "zelmat/commands/inputs/MaterialChoice.h"

#include <gtest/gtest.h>

namespace {

using zelmat::ChooseMaterial;
using zelmat::Findings;

using Names = std::vector<std::string>;

const Names kMetals = {"Steel S355", "Steel 4340", "Copper", "Copper, cold drawn", "#1"};

std::size_t Chosen(const std::string& wanted, const Names& names = kMetals) {
    Findings findings;
    const auto chosen = ChooseMaterial(names, wanted, "a.json", findings);
    EXPECT_TRUE(findings.All().empty()) << wanted;
    EXPECT_TRUE(chosen) << wanted;
    return chosen.value_or(99);
}

std::string Refusal(const std::string& wanted, const Names& names = kMetals) {
    Findings findings;
    EXPECT_FALSE(ChooseMaterial(names, wanted, "a.json", findings)) << wanted;
    EXPECT_EQ(findings.Exit(), zelmat::EXIT_USAGE);
    return findings.All().size() == 1 ? FindingLine(findings.All().front()) : "";
}

TEST(MaterialChoice, TakesAWholeName) {
    EXPECT_EQ(Chosen("Steel 4340"), 1u);
    EXPECT_EQ(Chosen("Copper"), 2u);  // also the beginning of another
}

TEST(MaterialChoice, TakesABeginningThatNoOtherHas) {
    EXPECT_EQ(Chosen("Steel S"), 0u);
    EXPECT_EQ(Chosen("Copper,"), 3u);
}

TEST(MaterialChoice, TakesANumberFromOneOn) {
    EXPECT_EQ(Chosen("#2"), 1u);
    EXPECT_EQ(Chosen("#5"), 4u);
    EXPECT_EQ(Chosen("#1"), 4u);  // a name comes before a number
}

TEST(MaterialChoice, RefusesABeginningOfSeveralAndTellsTheirNumbers) {
    EXPECT_EQ(Refusal("Steel"),
              "a.json: error[several-materials]: \"Steel\" can be 2 materials (#1: Steel S355, #2: Steel "
              "4340)");
}

TEST(MaterialChoice, RefusesANameThatTwoHaveAndTellsTheirNumbers) {
    const Names twins = {"Rubber", "Steel", "Rubber"};
    EXPECT_EQ(Refusal("Rubber", twins),
              "a.json: error[several-materials]: \"Rubber\" can be 2 materials (#1: Rubber, #3: Rubber)");
    EXPECT_EQ(Chosen("#3", twins), 2u);
}

TEST(MaterialChoice, RefusesAnotherNameAndListsTheNearest) {
    EXPECT_EQ(Refusal("steel"),
              "a.json: error[no-such-material]: there is no material \"steel\" (did you mean Steel S355, "
              "Steel 4340?)");
    EXPECT_EQ(Refusal("drwan"),
              "a.json: error[no-such-material]: there is no material \"drwan\" (did you mean Copper, cold "
              "drawn?)");
}

TEST(MaterialChoice, ListsAllWhereNoneIsNear) {
    EXPECT_EQ(
        Refusal("Granite", {"Steel", "Copper"}),
        "a.json: error[no-such-material]: there is no material \"Granite\" (has #1: Steel, #2: Copper)");
    EXPECT_EQ(Refusal("", {"Steel"}),
              "a.json: error[no-such-material]: there is no material \"\" (has #1: Steel)");
    EXPECT_EQ(Refusal("Granite", {}),
              "a.json: error[no-such-material]: there is no material \"Granite\" (there are no materials)");
}

TEST(MaterialChoice, RefusesNumbersThatThereAreNot) {
    EXPECT_EQ(Refusal("#0"), "a.json: error[no-such-material]: there is no material #0 (it has 5 materials)");
    EXPECT_EQ(Refusal("#6"), "a.json: error[no-such-material]: there is no material #6 (it has 5 materials)");
    EXPECT_EQ(Refusal("#99999999999999999999999", {"Steel"}),
              "a.json: error[no-such-material]: there is no material \"#99999999999999999999999\" (has #1: "
              "Steel)");
}

}  // namespace
