#include "zelmat/findings/Findings.h"

#include <gmock/gmock.h>

namespace {

using zelmat::Finding;
using zelmat::FindingKind;
using zelmat::FindingLine;
using zelmat::Findings;

TEST(Findings, ReadAsPlaceKindCodeTextAndDetails) {
    EXPECT_EQ(FindingLine({FindingKind::ERROR,
                           {"steel.json", 12},
                           "ragged-row",
                           "row 2 is short",
                           {"1 value", "expected 2"}}),
              "steel.json:12: error[ragged-row]: row 2 is short (1 value, expected 2)");
    EXPECT_EQ(FindingLine({FindingKind::WARNING, {"steel.json", 3}, "table-cut", "one row kept", {}}),
              "steel.json:3: warning[table-cut]: one row kept");
}

TEST(Findings, LeaveTheLineOutWhenTheWholeFileIsMeant) {
    EXPECT_EQ(FindingLine({FindingKind::UNREADABLE, {"steel.json", 0}, "unreadable", "cannot be read", {}}),
              "steel.json: error[unreadable]: cannot be read");
}

TEST(Findings, DecideTheExitCodeByTheWorst) {
    Findings findings;
    EXPECT_EQ(findings.Exit(), 0);
    EXPECT_EQ(findings.Exit(true), 0);
    EXPECT_FALSE(findings.HasErrors());

    findings.Add({FindingKind::WARNING, {"a", 1}, "w", "", {}});
    EXPECT_EQ(findings.Exit(), 0);
    EXPECT_EQ(findings.Exit(true), 1);
    EXPECT_FALSE(findings.HasErrors());

    findings.Add({FindingKind::ERROR, {"a", 1}, "e", "", {}});
    EXPECT_EQ(findings.Exit(), 1);
    EXPECT_TRUE(findings.HasErrors());

    findings.Add({FindingKind::USAGE, {"a", 0}, "o", "", {}});
    EXPECT_EQ(findings.Exit(), 2);

    findings.Add({FindingKind::UNREADABLE, {"a", 0}, "u", "", {}});
    EXPECT_EQ(findings.Exit(), 3);
}

TEST(Findings, CountAnImpossibleWishAsAnError) {
    Findings findings;
    findings.Add({FindingKind::USAGE, {"a", 7}, "no-such-model", "none", {}});
    EXPECT_TRUE(findings.HasErrors());
    EXPECT_EQ(FindingLine(findings.All()[0]), "a:7: error[no-such-model]: none");
}

TEST(Findings, CountAnUnreadableFileAsAnError) {
    Findings findings;
    findings.Add({FindingKind::UNREADABLE, {"a", 0}, "u", "", {}});
    EXPECT_TRUE(findings.HasErrors());
}

TEST(Findings, CanBeReadInTheOrderOfLinesWithTiesAsFound) {
    Findings findings;
    for (const auto& [line, code] : {std::pair(9, "a"), std::pair(2, "b"), std::pair(9, "c")}) {
        findings.Add({FindingKind::ERROR, {"f", line}, code, "", {}});
    }
    std::string codes;
    for (const Finding& finding : findings.ByLine()) codes += finding.code;
    EXPECT_EQ(codes, "bac");
}

TEST(Findings, StandOnOneLineWhateverTheFileHolds) {
    EXPECT_EQ(FindingLine({FindingKind::ERROR,
                           {"a\nb.json", 1},
                           "unknown-key",
                           "no key \"x\n\x1b[31m\xff\"",
                           {"known: y"}}),
              "a\\nb.json:1: error[unknown-key]: no key \"x\\n\\x1b[31m�\" (known: y)");
}

TEST(Findings, CanBeTakenBackForOneFile) {
    Findings findings;
    findings.Add({FindingKind::ERROR, {"a", 1}, "x", "", {}});
    findings.Add({FindingKind::ERROR, {"b", 1}, "y", "", {}});

    findings.RemoveAbout("a");

    ASSERT_EQ(findings.All().size(), 1u);
    EXPECT_EQ(findings.All()[0].code, "y");
}

TEST(Findings, CountANoteAsClean) {
    Findings findings;
    findings.Add({FindingKind::NOTE, {"a", 7}, "converted", "done", {}});
    EXPECT_FALSE(findings.HasErrors());
    EXPECT_EQ(findings.Exit(), 0);
    EXPECT_EQ(FindingLine(findings.All()[0]), "a:7: note[converted]: done");

    findings.Add({FindingKind::WARNING, {"a", 8}, "w", "", {}});
    EXPECT_EQ(findings.Exit(), 0);
    EXPECT_EQ(findings.Exit(true), 1);
}

}  // namespace
