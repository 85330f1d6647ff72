#include <gmock/gmock.h>

#include <cmath>

#include "tests/zelmat/commands/ResultJson.h"
#include "tests/zelmat/support/DocumentFolder.h"

namespace {

using testing::HasSubstr;
using testing::Not;

constexpr const char* kPly = R"({"name": "graphite/epoxy", "version": 1, "E1": "181 GPa", "E2": "10.3 GPa",
    "nu12": 0.28, "G12": "7.17 GPa"})";

/// Commands that take a document's layups: its plies are of a material that keeps their constants.
class GivenLayups : public DocumentFolder {
protected:
    GivenLayups() {
        Run({"add", document_, File("ply.json", kPly), File("core.json", R"({"name": "Core"})")});
        Add("Kaw", "[0/30/-45]", "graphite", "5mm");
        Add("Bare", "[0]", "Core", "1mm");
    }

    void Add(const std::string& name, const std::string& stack, const std::string& material,
             const std::string& thickness) const {
        Run({"layup", document_, "add", name, stack, "--material", material, "--thickness", thickness});
    }

    std::string Page(std::vector<std::string> more, int exitCode) const {
        std::vector<std::string> arguments = {"report", document_, "--output", Path("r.html")};
        arguments.insert(arguments.end(), more.begin(), more.end());
        EXPECT_EQ(RunZelmat(arguments).exitCode, exitCode);
        return Contents(Path("r.html"));
    }

    const std::string document_ = NewDocument();
};

// A. K. Kaw, Mechanics of Composite Materials, example 4.2.
TEST_F(GivenLayups, HaveTheConstantsOfTheMaterialsOfTheDocument) {
    for (const char* wanted : {"Kaw", "K", "#1"}) {
        const ResultJson kaw({"laminate", document_, wanted});
        EXPECT_EQ(kaw["laminate"], "Kaw");
        EXPECT_NEAR(kaw.Number("A", 0, "x"), 1.739e9, 0.0005e9);
        EXPECT_NEAR(kaw.Number("A", 1, "xy"), -114.1e6, 0.05e6);
        EXPECT_NEAR(kaw.Number("B", 0, "x"), -3.129e6, 0.0005e6);
        EXPECT_NEAR(kaw.Number("D", 2, "xy"), 7663.0, 0.5);
    }
}

TEST_F(GivenLayups, OfALaminateAreOneThatIsNamed) {
    EXPECT_THAT(Refusal(2, {"laminate", document_}),
                HasSubstr("a.zeldoc: error[several-layups]: it holds 2 layups (name one of them, has: Kaw, "
                          "Bare)"));
    EXPECT_THAT(Refusal(2, {"laminate", document_, "Kav"}),
                HasSubstr("error[no-such-layup]: there is no layup \"Kav\" (did you mean Kaw?"));
    EXPECT_THAT(Refusal(2, {"laminate", document_, "#3"}), HasSubstr("error[no-such-layup]"));
    EXPECT_THAT(Refusal(2, {"laminate", NewDocument("empty.zeldoc")}), HasSubstr("error[no-layups]"));
    EXPECT_THAT(Refusal(2, {"laminate", Sample("layups/kaw_0_30_m45.json"), "Kaw"}),
                HasSubstr("error[not-of-a-document]"));
    EXPECT_THAT(Refusal(2, {"laminate", document_, "Kaw", "--thickness", "1mm"}),
                HasSubstr("error[not-for-a-card]"));
    Run({"layup", document_, "remove", "Bare"});
    EXPECT_EQ(ResultJson({"laminate", document_})["laminate"], "Kaw");
}

TEST_F(GivenLayups, OfMaterialsWithoutConstantsAreNoLaminate) {
    EXPECT_THAT(Refusal(1, {"laminate", document_, "Bare"}),
                HasSubstr("a.zeldoc: error[no-laminate]: ply material 'Core': it has no E1, E2, nu12, G12"));
}

// Plane stress of E 199.5 GPa, nu 0.3 over 2 mm.
TEST_F(GivenLayups, HaveMaterialsThatDependOnTemperatureAtTheOneThatIsGiven) {
    const std::string document = DocumentOf({"steel_s355.json"}, "warm.zeldoc");
    Run({"layup", document, "add", "Plate", "[0]", "--material", "#1", "--thickness", "2mm"});
    const ResultJson plate({"laminate", document, "--temperature", "150degC"});
    EXPECT_EQ(plate.Number("temperature"), 423.15);
    EXPECT_NEAR(plate.Number("A", 0, "x"), 199.5e9 / (1.0 - 0.09) * 0.002, 1.0);
    EXPECT_NEAR(plate.Number("A", 0, "y"), 0.3 * 199.5e9 / (1.0 - 0.09) * 0.002, 1.0);

    EXPECT_THAT(
        Refusal(1, {"laminate", document}),
        HasSubstr("error[no-laminate]: ply material 'Structural steel S355': it has no E1, E2, nu12, "
                  "G12 (or E and nu of an isotropic one); elastic of Structural steel S355: the table "
                  "depends on temperature, and none is given (it goes from 293.15 K to 1373.15 K)"));
    EXPECT_THAT(
        Refusal(1, {"laminate", document, "--temperature", "150degC", "--dT", "100K"}),
        HasSubstr("the thermal expansion of its material is not known (thermal_expansion of Structural "
                  "steel S355: the temperature lies outside the table (it goes from 373.15 K to "
                  "1473.15 K))"));
    EXPECT_THAT(Refusal(2, {"laminate", Sample("layups/kaw_0_30_m45.json"), "--temperature", "20degC"}),
                HasSubstr("--temperature: error[not-for-constants]"));
}

TEST_F(GivenLayups, AreInTheReportOfTheDocument) {
    Run({"layup", document_, "remove", "Bare"});
    const std::string page = Page({}, 0);

    EXPECT_THAT(page, HasSubstr("2 materials, 1 layup"));
    EXPECT_THAT(page, HasSubstr("Ply material graphite/epoxy"));
    EXPECT_THAT(page, HasSubstr("Stiffness of the laminate"));
    EXPECT_THAT(page, Not(HasSubstr("id=\"changes\"")));
}

TEST_F(GivenLayups, AreInTheDeckOfTheDocument) {
    const std::string document = DocumentOf({"foam_rohacell71.json"}, "foam.zeldoc");
    Run({"layup", document, "add", "Plate", "[0]", "--material", "#1", "--thickness", "1mm"});
    const ProgramRun run = RunZelmat({"export", document, "--to", "calculix"});

    EXPECT_THAT(run.out, HasSubstr("*SHELL SECTION, COMPOSITE, ELSET=Plate"));
}

TEST_F(GivenLayups, AndMaterialsThatHaveChangedSinceAStepAreListed) {
    Run({"layup", document_, "remove", "Bare"});
    Run({"layup", document_, "set", "Kaw", "[0/90]s", "--material", "graphite", "--thickness", "5mm"});
    Run({"add", document_, Sample("steel_s355.json")});
    Run({"set", document_, "Core", "density=75kg/m3"});
    const std::string page = Page({"--since", "3"}, 0);

    EXPECT_THAT(page, HasSubstr("Changes since step 3"));
    EXPECT_THAT(page, HasSubstr("root: Remove layup Bare</li>"));
    EXPECT_THAT(page, Not(HasSubstr("Add layup Kaw</li>")));
    EXPECT_THAT(page, HasSubstr("<li>density"));
    EXPECT_THAT(page, HasSubstr("Material Core</h3>"));
    EXPECT_THAT(page, Not(HasSubstr("Material graphite/epoxy</h3>")));
    EXPECT_THAT(page, HasSubstr("<li>added</li>"));
    EXPECT_THAT(page, HasSubstr("Layup Bare</h3>\n<ul>\n<li>removed</li>"));
    EXPECT_THAT(page, HasSubstr("<li>layers: 3 -&gt; 4</li>\n<li>layers.angle_deg row 2: 30 deg -&gt; 90 "
                                "deg</li>\n<li>layers.angle_deg row 3: -45 deg -&gt; 90 deg</li>"));
    EXPECT_THAT(Page({"--since", "7"}, 0), HasSubstr("<p>No changes.</p>"));
}

TEST_F(GivenLayups, AndTheirChangesAreOfOneDocumentAndOfAStepThatItHas) {
    EXPECT_THAT(Refusal(2, {"report", document_, "--since", "99", "--output", Path("r.html")}),
                HasSubstr("error[no-such-step]: the document has no step 99 (has: 0, 1, 2, 3)"));
    EXPECT_THAT(Refusal(2, {"report", File("c.json", kPly), "--since", "1", "--output", Path("r.html")}),
                HasSubstr("--since: error[not-a-document]"));
    EXPECT_THAT(Refusal(2, {"report", document_, document_, "--since", "1", "--output", Path("r.html")}),
                HasSubstr("--since: error[not-a-document]"));
    EXPECT_EQ(Contents(Path("r.html")), "");
}

TEST_F(GivenLayups, DoNotKeepTheMaterialsOfTheDocumentFromBeingDrawn) {
    const std::string document = DocumentOf({"steel_s355.json"}, "steel.zeldoc");
    Run({"layup", document, "add", "Plate", "[0]", "--material", "Structural", "--thickness", "1mm"});

    EXPECT_THAT(Run({"plot", document, "--block", "elastic", "--output", Path("e.svg")}), HasSubstr("drawn"));
    EXPECT_THAT(Contents(Path("e.svg")), HasSubstr("</svg>"));
}

}  // namespace
