#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

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

/// The forces along x and y, per length of edge, that one S8R element of 1 m x 1 m of the layup takes at its
/// edge x = 1 when it is stretched by 0.001 along x and held otherwise: 0.001 A11 and 0.001 A16. At its edges
/// y = 0 and 1 it takes 0.001 A12.
struct EdgeForces {
    double along = 0.0, shear = 0.0, across = 0.0;
};

EdgeForces StretchedInTheSolver(const std::string& layup) {
    const ExportedDeck exported = ExportedLayup(layup);
    const std::string section = "ELSET=";
    const std::size_t name = exported.text.rfind(section) + section.size();
    const std::string elements = exported.text.substr(name, exported.text.find('\n', name) - name);
    const std::string deck =
        "*NODE, NSET=NALL\n1,0,0,0\n2,1,0,0\n3,1,1,0\n4,0,1,0\n5,.5,0,0\n6,1,.5,0\n7,.5,1,0\n8,0,.5,0\n"
        "*ELEMENT, TYPE=S8R, ELSET=" +
        elements +
        "\n1,1,2,3,4,5,6,7,8\n*NSET, NSET=NX\n2,3,6\n*NSET, NSET=N0\n1,4,8\n*NSET, NSET=NY\n3,4,7\n" +
        "*NSET, NSET=NM\n5,7\n" + exported.text +
        "*STEP\n*STATIC\n*BOUNDARY\nNALL,2,6,0.\nN0,1,1,0.\nNX,1,1,0.001\nNM,1,1,0.0005\n"
        "*NODE PRINT, NSET=NX, TOTALS=ONLY\nRF\n*NODE PRINT, NSET=NY, TOTALS=ONLY\nRF\n*END STEP\n";
    zelmat::Findings findings;
    const auto solver = zelmat::FindSolver("ccx", 60, findings);
    const auto results = solver ? zelmat::RunSolver(*solver, deck, "shell", findings) : std::nullopt;
    for (const auto& finding : findings.All()) ADD_FAILURE() << zelmat::FindingLine(finding);
    EdgeForces forces;
    if (!results) return forces;
    const auto total = [&](const char* set) {
        const std::size_t heading = results->printed.find(std::string("for set ") + set);
        return std::istringstream(results->printed.substr(results->printed.find("\n\n", heading)));
    };
    auto x = total("NX"), y = total("NY");
    x >> forces.along >> forces.shear;
    double ignored = 0.0;
    y >> ignored >> forces.across;
    return forces;
}

/// A11 = (Q11 + Q22)/2 h = 96.0779 GPa * 0.5 mm and A12 = Q12 h = 2.89692 GPa * 0.5 mm: nu21 for nu12 would
/// be a seventeenth of it.
TEST(CalculixLayup, IsAsStiffInTheSolverAsByLaminateTheory) {
    const auto forces = StretchedInTheSolver("cross_ply_t300_5208");
    EXPECT_NEAR(forces.along, 0.001 * 4.80391e7, 50.0);
    EXPECT_NEAR(forces.across, 0.001 * 1.44846e6, 10.0);
    EXPECT_NEAR(forces.shear, 0.0, 1.0);
}

/// A11 = 1.739e9, A12 = 3.884e8 and A16 = 5.663e7 N/m of graphite/epoxy [0/30/-45] (Kaw, Mechanics of
/// Composite Materials): an angle of the other sign would turn that of A16.
TEST(CalculixLayup, CouplesStretchAndShearInTheSolverAsByLaminateTheory) {
    const auto forces = StretchedInTheSolver("kaw_0_30_m45");
    EXPECT_NEAR(forces.along / 0.001, 1.739e9, 0.01e9);
    EXPECT_NEAR(forces.across / 0.001, 3.884e8, 0.05e8);
    EXPECT_NEAR(forces.shear / 0.001, 5.663e7, 0.06e7);
}

}  // namespace
