#include <gmock/gmock.h>

#include "tests/zelmat/support/DocumentFolder.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* kSteel = R"({"name": "Steel", "density": {"temperature_dependent": false,
    "columns": ["density [g/cm^3]"], "rows": [[7.85]]}})";
constexpr const char* kCopper = R"({"name": "Copper", "density": {"temperature_dependent": false,
    "columns": ["density"], "rows": [[8960]]}})";
constexpr const char* kFaulty = R"({"name": "Faulty", "density": {"temperature_dependent": false,
    "columns": ["density"], "rows": [[-1]]}})";

using AddCommand = DocumentFolder;

TEST_F(AddCommand, PutsCardsIntoADocumentInOneStep) {
    const std::string document = NewDocument();
    const std::string out = Run({"add", document, File("steel.json", kSteel), File("copper.json", kCopper)});

    EXPECT_EQ(out,
              "added: Steel (23 features)\n"
              "added: Copper (20 features)\n"
              "step 1: Add Steel, Copper\n");
    EXPECT_THAT(Names(document), ElementsAre("Steel", "Copper"));
    Run({"undo", document});
    EXPECT_THAT(Names(document), IsEmpty());
}

TEST_F(AddCommand, TakesTheMaterialsOfAnotherDocument) {
    const std::string first = NewDocument("first.zeldoc");
    Run({"add", first, File("steel.json", kSteel)});
    const std::string second = NewDocument("second.zeldoc");
    Run({"add", second, first});

    EXPECT_THAT(Names(second), ElementsAre("Steel"));
}

TEST_F(AddCommand, RefusesANameThatIsTakenAndAddsNothing) {
    const std::string document = NewDocument();
    const std::string steel = File("steel.json", kSteel);
    Run({"add", document, steel});
    const std::string before = Contents(document);

    EXPECT_EQ(
        Refusal(1, {"add", document, File("copper.json", kCopper), steel}),
        "steel.json: error[name-taken]: there is a material \"Steel\" in a.zeldoc already (not added)\n");
    EXPECT_TRUE(Contents(document) == before);
}

TEST_F(AddCommand, RefusesANameThatTwoOfTheCardsHave) {
    const std::string document = NewDocument();
    const std::string steel = File("steel.json", kSteel);

    EXPECT_THAT(Refusal(1, {"add", document, steel, steel}), HasSubstr("error[name-taken]"));
    EXPECT_THAT(Names(document), IsEmpty());
}

TEST_F(AddCommand, RefusesACardOnWhichTheChecksFindErrors) {
    const std::string document = NewDocument();

    EXPECT_THAT(Refusal(1, {"add", document, File("steel.json", kSteel), File("faulty.json", kFaulty)}),
                HasSubstr("faulty.json:2: error"));
    EXPECT_THAT(Names(document), IsEmpty());
}

TEST_F(AddCommand, AddsWhatItCanWhenItIsToKeepGoing) {
    const std::string document = NewDocument();
    const std::string steel = File("steel.json", kSteel);
    Refusal(1, {"add", document, steel, steel, File("faulty.json", kFaulty), "--keep-going"});

    EXPECT_THAT(Names(document), ElementsAre("Steel", "Faulty"));
}

TEST_F(AddCommand, StoresTheFitThatIsAskedFor) {
    const std::string document = NewDocument();
    Run({"add", document, Sample("natural_rubber_treloar.json"), "--model", "YEOH"});

    EXPECT_THAT(Run({"show", document}), HasSubstr("model: YEOH"));
}

TEST_F(AddCommand, RefusesADocumentInItsTextFormAndNamesTheWay) {
    const std::string text = File("old.json", R"({"format": 1, "features": []})");

    EXPECT_EQ(Refusal(2, {"add", text, File("steel.json", kSteel)}),
              "old.json: error[text-document]: a document in its text form is not changed in place (zelmat "
              "upgrade old.json --output NEW.zeldoc makes one that can be)\n");
    EXPECT_EQ(Contents(text), R"({"format": 1, "features": []})");
}

TEST_F(AddCommand, RefusesAFileThatIsNoDocument) {
    const std::string card = File("steel.json", kSteel);

    EXPECT_THAT(Refusal(3, {"add", card, card}), HasSubstr("steel.json: error"));
    EXPECT_EQ(Contents(card), kSteel);
    EXPECT_THAT(Refusal(3, {"add", Path("none.zeldoc"), card}), HasSubstr("none.zeldoc: error"));
}

TEST_F(AddCommand, BringsOlderMaterialsOfAnotherDocumentUpToDate) {
    const std::string document = NewDocument();
    Run({"add", document, Sample("older/copper_and_rubber.json")});

    EXPECT_THAT(Names(document), ElementsAre("OFHC copper", "Vulcanised natural rubber"));
}

TEST_F(AddCommand, ShowsProgressOnATerminalAlone) {
    const std::vector<std::string> cards = {File("steel.json", kSteel), File("copper.json", kCopper)};
    const ProgramRun quiet = RunZelmat({"add", NewDocument("a.zeldoc"), cards[0], cards[1]});
    const ProgramRun loud = RunZelmatOnTerminal({"add", NewDocument("b.zeldoc"), cards[0], cards[1]});

    EXPECT_EQ(quiet.err, "");
    EXPECT_THAT(loud.out, HasSubstr("read 1 of 2 cards"));
    EXPECT_THAT(loud.out, HasSubstr("added 2 of 2 materials"));
}

}  // namespace
