#include "zelmat/text/NearestName.h"

#include <gtest/gtest.h>

namespace {

using zelmat::NearestName;
using zelmat::NearestNames;
using Names = std::vector<std::string>;

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

TEST(NearestName, IsTheOneThatDiffersInCapitalsAlone) {
    EXPECT_EQ(NearestName("ogden", {"voce", "OGDEN"}), "OGDEN");
    EXPECT_EQ(NearestName("Voce", {"Vode", "voce"}), "voce");
}

TEST(NearestNames, HaveTheTextAtTheBeginningOfAWord) {
    EXPECT_EQ(NearestNames("rubber", {"Natural Rubber", "Steel", "Rubber A"}, 8),
              (Names{"Natural Rubber", "Rubber A"}));
    EXPECT_EQ(NearestNames("rubbr", {"Natural rubber (Treloar)", "Steel"}, 8),
              Names{"Natural rubber (Treloar)"});
    EXPECT_EQ(NearestNames("6061", {"Aluminium 6061-T6", "Aluminium 2024-T351"}, 8),
              Names{"Aluminium 6061-T6"});
}

TEST(NearestNames, BeginWithTheNearestAndAreNoMoreThanAskedFor) {
    EXPECT_EQ(NearestNames("stel", {"steam", "stel", "style"}, 2), (Names{"stel", "steam"}));
}

TEST(NearestNames, AreNoneWhenNoneIsNear) {
    EXPECT_EQ(NearestNames("granite", {"steel"}, 8), Names{});
    EXPECT_EQ(NearestNames("", {"steel"}, 8), Names{});
    EXPECT_EQ(NearestNames(std::string(100'000, 's'), {"steel"}, 8), Names{});
}

}  // namespace
