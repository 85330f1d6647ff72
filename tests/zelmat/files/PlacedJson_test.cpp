#include "zelmat/files/PlacedJson.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>

namespace zelmat {

namespace {

int LineAt(const PlacedJson& tree, const std::string& pointer) {
    return tree.Line(nlohmann::json::json_pointer(pointer));
}

}  // namespace

TEST(PlacedJson, GivesAValueWithoutALineTheLineOfTheValueAroundIt) {
    const PlacedJson tree("card", {{"elastic", {{"columns", {"a", "b"}}}}}, {{"/elastic", 3}});

    EXPECT_EQ(LineAt(tree, "/elastic"), 3);
    EXPECT_EQ(LineAt(tree, "/elastic/columns/1"), 3);
    EXPECT_EQ(LineAt(tree, ""), 0);
}

TEST(PlacedJson, KnowsTheLinesOfAListsElementsAndOfWhatLiesInThem) {
    const PlacedJson tree("card", {{"rows", {{1.0, 2.0}, {3.0, 4.0}}}}, {{"/rows", 5}}, {{"/rows", {6, 8}}});

    EXPECT_EQ(LineAt(tree, "/rows"), 5);
    EXPECT_EQ(LineAt(tree, "/rows/0"), 6);
    EXPECT_EQ(LineAt(tree, "/rows/1"), 8);
    EXPECT_EQ(LineAt(tree, "/rows/1/0"), 8);
    EXPECT_EQ(LineAt(tree, "/rows/2"), 5) << "no such element";
    EXPECT_EQ(LineAt(tree, "/rows/first"), 5) << "no element's name";
}

}  // namespace zelmat
