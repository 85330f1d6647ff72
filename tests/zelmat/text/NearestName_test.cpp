#include "zelmat/text/NearestName.h"

#include <gtest/gtest.h>

namespace {

using zelmat::NearestName;

TEST(NearestName, MendsASlipOfTheKeyboard) {
    EXPECT_EQ(NearestName("shwo", {"layup", "show", "summary"}), "show");       // two letters swapped
    EXPECT_EQ(NearestName("sumary", {"layup", "show", "summary"}), "summary");  // one left out
    EXPECT_EQ(NearestName("layupp", {"layup", "show", "summary"}), "layup");    // one too many
    EXPECT_EQ(NearestName("--jsom", {"--json", "--model"}), "--json");          // one exchanged
}

TEST(NearestName, IsEmptyWhenNoneIsNear) {
    EXPECT_EQ(NearestName("frobnicate", {"layup", "show"}), "");
    EXPECT_EQ(NearestName("", {"layup"}), "");
    EXPECT_EQ(NearestName("x", {}), "");
    EXPECT_EQ(NearestName(std::string(100'000, 'x'), {"layup"}), "");
}

TEST(NearestName, IsTheFirstOfSeveralThatAreAsNear) {
    EXPECT_EQ(NearestName("B", {"A", "C"}), "A");
}

}  // namespace
