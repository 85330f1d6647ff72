#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/zelmat/exchange/SampleDeck.h"
#include "tests/zelmat/support/Program.h"
#include "zelmat/exchange/calculix/SolverRun.h"
#include "zelmat/layups/LayupCardReader.h"

namespace {

using testing::Contains;
using testing::HasSubstr;

ExportedDeck ExportedLayup(const std::string& name) {
    zelmat::Findings findings;
    const auto layup = zelmat::LayupCardReader(findings).Read(Sample("layups/" + name + ".json"));
    ExportedDeck deck;
    deck.files = zelmat::ExportDeck(*zelmat::FindDeckForm("calculix"), {{}, {layup.value()}, {}},
                                    zelmat::DeckUnits::Si(), findings);
    if (!deck.files.empty()) deck.text = deck.files.front().text;
    for (const auto& finding : findings.All()) deck.findings.push_back(finding.text);
    return deck;
}

TEST(CalculixLayup, WritesPliesOrientationsAndTheSection) {
    EXPECT_EQ(WithoutComments(ExportedLayup("cross_ply_t300_5208").text),
              "*MATERIAL, NAME=T300_5208\n"
              "*ELASTIC, TYPE=ENGINEERING CONSTANTS\n"
              "1.81e+11, 1.03e+10, 1.03e+10, 0.28, 0.28, 0.28, 7.17e+09, 7.17e+09\n"
              "4023437500\n"
              "*DENSITY\n1600\n"
              "*ORIENTATION, NAME=OR1, SYSTEM=RECTANGULAR\n1, 0, 0, 0, 1, 0\n"
              "*ORIENTATION, NAME=OR2, SYSTEM=RECTANGULAR\n0, 1, 0, -1, 0, 0\n"
              "*SHELL SECTION, COMPOSITE, ELSET=Cross-ply_0_90_s_T300_5208\n"
              "0.000125, , T300_5208, OR1\n0.000125, , T300_5208, OR2\n"
              "0.000125, , T300_5208, OR2\n0.000125, , T300_5208, OR1\n");
}

TEST(CalculixLayup, TellsWhatIsAssumedAcrossThePly) {
    EXPECT_THAT(
        ExportedLayup("cross_ply_t300_5208").findings,
        Contains(HasSubstr("assumed to be the same in 2 and 3, with nu23 = nu12: nu13, nu23, E3, G13, G23")));
    EXPECT_THAT(ExportedLayup("cross_ply_t300_5208").findings, Contains(HasSubstr("S8R or S6")));
}

/// One S8R element, 1 m x 1 m, stretched by 0.001 along x, its other edges on rollers: per length of edge the
/// force is 0.001 A11.
TEST(CalculixLayup, IsAsStiffInTheSolverAsByLaminateTheory) {
    std::string deck =
        "*NODE, NSET=NALL\n1,0,0,0\n2,1,0,0\n3,1,1,0\n4,0,1,0\n5,.5,0,0\n6,1,.5,0\n7,.5,1,0\n8,0,.5,0\n"
        "*ELEMENT, TYPE=S8R, ELSET=Cross-ply_0_90_s_T300_5208\n1,1,2,3,4,5,6,7,8\n"
        "*NSET, NSET=NX\n2,3,6\n*NSET, NSET=N0\n1,4,8\n*NSET, NSET=NY\n1,2,3,4,5,7\n" +
        ExportedLayup("cross_ply_t300_5208").text +
        "*STEP\n*STATIC\n*BOUNDARY\nNALL,3,6,0.\nN0,1,1,0.\nNX,1,1,0.001\nNY,2,2,0.\n"
        "*NODE PRINT, NSET=NX, TOTALS=ONLY\nRF\n*END STEP\n";
    zelmat::Findings findings;
    const auto solver = zelmat::FindSolver("ccx", 60, findings);
    ASSERT_TRUE(solver);
    const auto results = zelmat::RunSolver(*solver, deck, "shell", findings);
    for (const auto& finding : findings.All()) ADD_FAILURE() << zelmat::FindingLine(finding);
    ASSERT_TRUE(results);
    // A11 = (Q11 + Q22)/2 h = 96.0779 GPa * 0.5 mm, as on the card
    const std::size_t at = results->printed.find("\n\n", results->printed.find("total force"));
    EXPECT_NEAR(std::stod(results->printed.substr(at)), 0.001 * 4.80391e7, 50.0);
}

}  // namespace
