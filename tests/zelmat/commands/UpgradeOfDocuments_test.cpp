#include <gmock/gmock.h>

#include "tests/zelmat/support/DocumentFolder.h"

namespace {

using testing::HasSubstr;

class UpgradeOfDocuments : public DocumentFolder {
protected:
    const std::string older_ = Sample("older/copper_and_rubber.json");
};

TEST_F(UpgradeOfDocuments, MakesADocumentInAFileOfOneInItsTextForm) {
    const std::string document = Path("new.zeldoc");
    EXPECT_THAT(Run({"upgrade", older_, "--output", document}), HasSubstr("written: new.zeldoc"));

    EXPECT_THAT(Names(document), testing::ElementsAre("OFHC copper", "Vulcanised natural rubber"));
    EXPECT_EQ(RunZelmat({"diff", older_, document}).exitCode, 0);
    EXPECT_THAT(Run({"upgrade", document}), HasSubstr("materials: 2, upgraded: 0"));
}

TEST_F(UpgradeOfDocuments, KeepsTheUpgradeAsAStepThatUndoTakesBack) {
    const std::string document = Path("new.zeldoc");
    Run({"upgrade", older_, "--output", document});
    Run({"undo", document});
    EXPECT_THAT(Run({"upgrade", document, "--dry-run"}), HasSubstr("upgraded: 2"));
    EXPECT_THAT(Run({"redo", document}), HasSubstr("redone: step 1"));
}

TEST_F(UpgradeOfDocuments, ConvertsTheSameCoefficientsAgainAfterItWasUndone) {
    const std::string document = Path("new.zeldoc");
    Run({"upgrade", older_, "--output", document});
    const std::string card = Run({"extract", document, "Vulcanised"});
    EXPECT_THAT(card, HasSubstr("630000"));  // Pa; 0.63 MPa before
    Run({"undo", document});
    EXPECT_EQ(Run({"extract", document, "Vulcanised"}), card);
    Run({"upgrade", document});
    EXPECT_EQ(Run({"extract", document, "Vulcanised"}), card);
}

TEST_F(UpgradeOfDocuments, TakesNewMaterialsBesideTheUpgradedOnes) {
    const std::string document = Path("new.zeldoc");
    Run({"upgrade", older_, "--output", document});
    Run({"add", document, Sample("natural_rubber_treloar.json")});
    Run({"rename", document, "#1", "Copper"});

    EXPECT_EQ(RunZelmat({"diff", document, Sample("natural_rubber_treloar.json")}).exitCode, 1);
    EXPECT_EQ(Run({"extract", document, "Vulcanised natural rubber ("}),
              Run({"convert", Sample("natural_rubber_treloar.json"), "--to", "json"}));
}

TEST_F(UpgradeOfDocuments, UpgradesWhenADocumentIsOpenedForAChangeAndSaysSo) {
    const std::string document = Path("new.zeldoc");
    Run({"upgrade", older_, "--output", document});
    Run({"undo", document});
    const ProgramRun run = RunZelmat({"set", document, "OFHC", "class=metal"});

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_THAT(run.err, HasSubstr("note[upgraded]: 2 materials of an older release are brought up to date"));
    Run({"undo", document, "2"});
    EXPECT_THAT(Run({"upgrade", document, "--dry-run"}), HasSubstr("upgraded: 2"));
}

TEST_F(UpgradeOfDocuments, HasALineForEachOfSeveral) {
    const std::string a = DocumentOf({"copper_ofhc.json"}, "a.zeldoc");
    const std::string b = Path("b.zeldoc");
    Run({"upgrade", older_, "--output", b});
    Run({"undo", b});

    EXPECT_EQ(Run({"upgrade", a, b, "--dry-run"}), "a.zeldoc: up to date\nb.zeldoc: 2 materials upgraded\n");
    EXPECT_EQ(Run({"upgrade", a, b}), "a.zeldoc: up to date\nb.zeldoc: 2 materials upgraded\n");
    EXPECT_EQ(Run({"upgrade", a, b}), "a.zeldoc: up to date\nb.zeldoc: up to date\n");
    EXPECT_THAT(Refusal(3, {"upgrade", a, Path("none.zeldoc")}), HasSubstr("none.zeldoc: error[unreadable]"));
    EXPECT_THAT(Refusal(2, {"upgrade", a, b, "--output", Path("c.zeldoc")}), HasSubstr("error[usage]"));
}

TEST_F(UpgradeOfDocuments, RefusesAFileInTheWay) {
    const std::string there = DocumentOf({"copper_ofhc.json"}, "a.zeldoc");
    EXPECT_THAT(Refusal(3, {"upgrade", older_, "--output", there}), HasSubstr("error[not-made]"));
    EXPECT_THAT(Names(there), testing::ElementsAre("OFHC copper"));
}

}  // namespace
