#include "zelmat/exchange/calculix/ReadCalculixLayup.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/zelmat/exchange/SampleDeck.h"
#include "tests/zelmat/support/CardFile.h"
#include "tests/zelmat/support/Program.h"
#include "zelmat/exchange/calculix/ReadCalculix.h"
#include "zelmat/layups/LayupCardReader.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using zelmat::Findings;
using zelmat::LayupCard;

const std::string kPlies =
    "*MATERIAL, NAME=Ply\n*ELASTIC, TYPE=ENGINEERING "
    "CONSTANTS\n181000,10300,10300,.28,.28,.28,7170,7170\n4000\n"
    "*MATERIAL, NAME=Core\n*ELASTIC\n105, .4\n";

struct ReadLayup {
    explicit ReadLayup(const std::string& text, const std::string& set = "skin") {
        const CardFile file(text);
        Findings ignored, found;
        const auto units = zelmat::DeckUnits::Read("mm-t-s", ignored).value();
        const auto materials = zelmat::ReadCalculix(file.Path(), units, ignored);
        layup = zelmat::ReadCalculixLayup(file.Path(), set, materials, units, found);
        for (const auto& finding : found.All())
            findings.push_back(file.Shorten(zelmat::FindingLine(finding)));
    }
    std::optional<LayupCard> layup;
    std::vector<std::string> findings;
};

TEST(ReadCalculixLayup, ReadsASectionOfOtherHands) {
    const ReadLayup read(kPlies +
                         "*orientation, name=or 1\n1.,0.,0.,0.,1.,0.\n"
                         "*Orientation, Name=Or2, System=Rectangular\n0.,1.,0.,-1.,0.,0.\n"
                         "*ORIENTATION, NAME=OR3\n1.,0.,0.,0.,1.,0.\n3, -30.\n"
                         "*Shell section, composite, elset=Other\n1.,,PLY\n"
                         "** bottom up\n"
                         "*Shell Section, Composite, Elset=Skin, Orientation=OR3\n"
                         " .125 ,3, PLY, or2\n.125, , ply,\n10., , CORE, OR 1\n*STEP\n");

    ASSERT_TRUE(read.layup) << (read.findings.empty() ? "" : read.findings.front());
    EXPECT_EQ(read.layup->name, "Skin");
    ASSERT_EQ(read.layup->layers.size(), 3U);
    EXPECT_EQ(read.layup->layers[0].angle, 90.0);
    EXPECT_EQ(read.layup->layers[1].angle, -30.0);
    EXPECT_EQ(read.layup->layers[2].angle, 0.0);
    EXPECT_EQ(read.layup->layers[0].thickness, 0.000125);
    EXPECT_EQ(read.layup->layers[2].thickness, 0.01);
    EXPECT_EQ(*read.layup->layers[1].material, "Ply");
    ASSERT_EQ(read.layup->materials.size(), 2U);
    EXPECT_EQ(read.layup->materials[0].Constant("E1"), 181e9);
    EXPECT_EQ(read.layup->materials[0].Constant("G23"), 4e9);
    EXPECT_EQ(read.layup->materials[1].Constant("E"), 105e6);
}

TEST(ReadCalculixLayup, TakesTheLastOfTwoSectionsAndTellsAnOffset) {
    const ReadLayup read(kPlies +
                         "*SHELL SECTION, COMPOSITE, ELSET=Skin\n1.,,PLY\n2.,,PLY\n"
                         "*SHELL SECTION, COMPOSITE, ELSET=SKIN, OFFSET=0.5\n3.,,PLY\n");

    ASSERT_TRUE(read.layup);
    ASSERT_EQ(read.layup->layers.size(), 1U);
    EXPECT_EQ(read.layup->layers[0].thickness, 0.003);
    EXPECT_THAT(
        read.findings,
        ElementsAre("card.json:11: warning[card-twice]: a second composite section of 'SKIN': the last "
                    "one counts",
                    "card.json:11: warning[not-imported]: OFFSET: a layup lies in the middle of its "
                    "elements, wherever they do"));
}

TEST(ReadCalculixLayup, TellsPliesWhoseStiffnessItCannotTake) {
    const ReadLayup read(
        "*MATERIAL, NAME=Alu\n*ELASTIC\n70000., .3, 20.\n60000., .3, 200.\n"
        "*SHELL SECTION, COMPOSITE, ELSET=Skin\n1.,,Alu\n2.,,Alu\n");

    ASSERT_TRUE(read.layup);
    ASSERT_EQ(read.findings.size(), 1U);
    EXPECT_THAT(read.findings[0],
                testing::StartsWith(
                    "card.json:6: warning[not-imported]: 'Alu' brings no constant stiffness of a ply: "));
}

TEST(ReadCalculixLayup, NamesLineAndReason) {
    const auto first = [](const std::string& text) {
        const ReadLayup read(kPlies + text);
        EXPECT_FALSE(read.layup) << text;
        return read.findings.empty() ? "" : read.findings.front();
    };
    EXPECT_EQ(
        first("*NODE\n"),
        "card.json: error[no-layup]: there is no composite shell section of 'skin' (there is none at all)");
    EXPECT_EQ(first("*SHELL SECTION, COMPOSITE, ELSET=Wing\n1,,PLY\n"),
              "card.json: error[no-layup]: there is no composite shell section of 'skin' (there are those of "
              "Wing)");
    EXPECT_EQ(first("*SHELL SECTION, COMPOSITE, ELSET=SKIN\nthick,,PLY\n"),
              "card.json:9: error[no-number]: 'thick' is no thickness of a layer");
    EXPECT_EQ(first("*SHELL SECTION, COMPOSITE, ELSET=SKIN\n1,,STEEL\n"),
              "card.json:9: error[no-material]: there is no *MATERIAL 'STEEL'");
    EXPECT_EQ(first("*SHELL SECTION, COMPOSITE, ELSET=SKIN\n1,,PLY,OR1\n"),
              "card.json:9: error[no-orientation]: there is no *ORIENTATION 'OR1' before it");
    for (const char* other : {"1,0,0,0,0,1\n", "1,0,0,0,-1,0\n", "1,0,x,0,1,0\n", "1,0,0,0,1,0\n1,30.\n"}) {
        EXPECT_EQ(first("*ORIENTATION, NAME=OR1\n" + std::string(other) +
                        "*SHELL SECTION, COMPOSITE, ELSET=SKIN\n1,,PLY,OR1\n"),
                  "card.json:8: error[other-orientation]: 'OR1' is no rectangular orientation in the plane "
                  "x-y with its "
                  "axis 3 along z");
    }
}

class EverySampleLayup : public testing::TestWithParam<const char*> {};

TEST_P(EverySampleLayup, IsTheSameDeckAfterImportAndExport) {
    Findings findings;
    const auto units = zelmat::DeckUnits::Read("mm-t-s", findings).value();
    const auto& form = *zelmat::FindDeckForm("calculix");
    const auto layup =
        zelmat::LayupCardReader(findings).Read(Sample(std::string("layups/") + GetParam() + ".json"));
    const auto deck = zelmat::ExportDeck(form, {{}, {layup.value()}, {}}, units, findings);
    const CardFile file(deck.front().text);
    const auto materials = zelmat::ReadCalculix(file.Path(), units, findings);
    const std::size_t set = deck.front().text.rfind("ELSET=") + 6;
    const auto again = zelmat::ReadCalculixLayup(
        file.Path(), deck.front().text.substr(set, deck.front().text.find('\n', set) - set), materials, units,
        findings);

    ASSERT_TRUE(again);
    EXPECT_EQ(again->layers.size(), layup->layers.size());
    for (std::size_t at = 0; at < again->layers.size(); ++at)
        EXPECT_EQ(again->layers[at].angle, layup->layers[at].angle);
    const auto deckAgain = zelmat::ExportDeck(form, {{}, {*again}, {}}, units, findings);
    EXPECT_EQ(WithoutComments(deckAgain.front().text), WithoutComments(deck.front().text));
}

INSTANTIATE_TEST_SUITE_P(ReadCalculixLayup, EverySampleLayup,
                         testing::Values("angle_ply_t300_5208", "cross_ply_t300_5208", "kaw_0_30_m45",
                                         "nasa_rp1351_0_45_s", "quasi_isotropic_t300_5208",
                                         "sandwich_t300_rohacell"));

TEST(ImportLayup, WritesACardThatTheProgramReads) {
    const CardFile deck(kPlies + "*SHELL SECTION, COMPOSITE, ELSET=Skin\n.125,,PLY\n");
    const std::string card = deck.Path() + ".layup.json";
    const ProgramRun run =
        RunZelmat({"import", deck.Path(), "--units", "mm-t-s", "--layup", "skin", "--output", card});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    const ProgramRun laminate = RunZelmat({"laminate", card});
    EXPECT_EQ(laminate.exitCode, 0) << laminate.err;
    EXPECT_EQ(RunZelmat({"import", "-", "--units", "mm-t-s", "--layup", "skin"}).exitCode, 2);
    EXPECT_EQ(RunZelmat({"import", deck.Path(), "--units", "mm-t-s", "--layup", "none"}).exitCode, 1);
}

}  // namespace
