#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <set>

#include "tests/zelmat/checks/RuleSeeds.h"
#include "tests/zelmat/support/CardFile.h"
#include "zelmat/cards/ReadCard.h"
#include "zelmat/checks/CheckRules.h"
#include "zelmat/checks/Checks.h"

namespace {

using namespace zelmat;

/// How often the rule was broken; every time with the kind that the seed expects.
std::size_t CountOf(const RuleSeed& seed, const Material& material) {
    std::size_t count = 0;
    const Findings findings = CheckMaterial(material);
    for (const Finding& finding : findings.All()) {
        if (finding.code != seed.code) continue;
        EXPECT_STREQ(KindWord(finding.kind), seed.kind);
        ++count;
    }
    return count;
}

/// What reading gives, kept values included.
Material Read(const std::string& text) {
    const CardFile file(text);
    Findings findings;
    auto material = ReadCard(file.Path(), findings);
    EXPECT_FALSE(findings.HasErrors()) << FindingLine(findings.All().front()) << text;
    return std::move(*material);
}

class EveryRule : public testing::TestWithParam<RuleSeed> {};

TEST_P(EveryRule, FindsASeededFaultOnce) {
    Material material = Read(GetParam().broken);
    if (GetParam().spoil) GetParam().spoil(material);
    EXPECT_EQ(CountOf(GetParam(), material), 1u);
}

TEST_P(EveryRule, IsSilentWithoutTheFault) {
    EXPECT_EQ(CountOf(GetParam(), Read(GetParam().kept)), 0u);
}

INSTANTIATE_TEST_SUITE_P(OfTheTable, EveryRule, testing::ValuesIn(RuleSeeds()), [](const auto& seed) {
    std::string name = seed.param.code;
    std::replace_if(
        name.begin(), name.end(), [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
    return name;
});

TEST(CheckRules, AllHaveASeededFault) {
    std::set<std::string> seeded;
    for (const RuleSeed& seed : RuleSeeds()) seeded.insert(seed.code);
    for (const CheckTopic& topic : CheckRules()) {
        for (const CheckRule& rule : topic.rules) {
            if (rule.look) {
                EXPECT_EQ(seeded.count(rule.code), 1u) << rule.code;
            }
        }
    }
}

TEST(CheckRules, HaveACodeOfTheirOwnAndSayWhereTheirBoundComesFrom) {
    std::set<std::string> codes;
    for (const CheckTopic& topic : CheckRules()) {
        for (const CheckRule& rule : topic.rules) {
            EXPECT_TRUE(codes.insert(rule.code).second) << rule.code;
            EXPECT_FALSE(rule.says.empty()) << rule.code;
            EXPECT_FALSE(rule.source.empty()) << rule.code;
            EXPECT_EQ(FindCheckRule(rule.code), &rule);
        }
    }
    EXPECT_EQ(FindCheckRule("no-such-rule"), nullptr);
}

}  // namespace
