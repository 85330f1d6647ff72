#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "tests/zelmat/support/DocumentFolder.h"

namespace {

using testing::HasSubstr;

/// A document of two materials that plies can be of.
class LayupActions : public DocumentFolder {
protected:
    LayupActions() {
        Run({"add", document_, File("ply.json", R"({"name": "T300/5208"})"),
             File("core.json", R"({"name": "Core"})")});
    }

    std::string Add(const std::string& name, const std::string& stack) const {
        return Run({"layup", document_, "add", name, stack, "--material", "T300", "--thickness", "0.125mm"});
    }

    const std::string document_ = NewDocument();
};

TEST_F(LayupActions, AddALayupOfMaterialsOfTheDocument) {
    EXPECT_EQ(Add("Skin", "[0/90]s"), "step 2: Add layup Skin\n");

    EXPECT_EQ(Run({"layup", document_, "list"}),
              "  #  layup  layers  notation\n"
              "  1  Skin        4  [0/90]s\n"
              "\nlayups: 1\n");
    const std::string shown = Run({"layup", document_, "show", "Skin"});
    EXPECT_THAT(shown, HasSubstr("T300/5208"));
    EXPECT_THAT(Run({"doctor", document_}), HasSubstr("sound"));
}

TEST_F(LayupActions, LinkThePliesSoThatARenamedMaterialIsStillTheirs) {
    Add("Skin", "[0/90]s");
    Run({"rename", document_, "T300", "Prepreg"});

    EXPECT_THAT(Run({"layup", document_, "show", "Skin"}), HasSubstr("Prepreg"));
}

TEST_F(LayupActions, KeepAMaterialThatALayupUsesFromBeingRemoved) {
    Add("Skin", "[0/90]s");
    Add("Rib", "[0]");

    EXPECT_EQ(
        Refusal(1, {"remove", document_, "T300"}),
        "a.zeldoc: error[material-used]: T300/5208 is used by Skin, Rib (not removed; --force removes it "
        "all the same)\n");
    Run({"remove", document_, "Core"});
    Run({"remove", document_, "T300", "--force"});
    EXPECT_THAT(Run({"list", document_}), testing::StartsWith("materials: 0\n"));
    EXPECT_THAT(Run({"layup", document_, "list"}), HasSubstr("layups: 2"));
}

TEST_F(LayupActions, TellWhichMaterialOfALayupWasRemoved) {
    Add("Skin", "[0/90]s");
    EXPECT_EQ(Refusal(0, {"layup", document_, "show", "Skin"}), "");
    Refusal(0, {"remove", document_, "T300", "--force"});
    const std::string warning =
        "a.zeldoc: warning[removed-material]: layers of 'Skin' are of 'T300/5208', which was removed from "
        "the "
        "document (undo brings it back; layup a.zeldoc set gives the layup other layers)\n";

    EXPECT_EQ(Refusal(0, {"layup", document_, "show", "Skin"}), warning);
    EXPECT_EQ(Refusal(0, {"check", document_}), warning);
    Run({"undo", document_});
    EXPECT_EQ(Refusal(0, {"check", document_}), "");
}

TEST_F(LayupActions, TellWhichLayersOfALayupHaveNoMaterialAndWhenThereAreNone) {
    Run({"add", document_, File("m.json", R"({"name": "M"})")});
    Run({"layup", document_, "add", "layup_no_material.json"});
    Run({"layup", document_, "add", "layup_no_layers.json"});

    EXPECT_THAT(Refusal(1, {"layup", document_, "show", "Half a layup"}),
                HasSubstr("a.zeldoc: error[invalid-layup]: layer 2 has no material ("));
    EXPECT_THAT(Refusal(1, {"layup", document_, "show", "No layup"}),
                HasSubstr("a.zeldoc: error[invalid-layup]: the layup has no layers ("));
}

TEST_F(LayupActions, SetTheLayersAnewAndUndoBringsTheOldOnesBack) {
    Add("Skin", "[0/90]s");
    Run({"layup", document_, "set", "Skin", "[45/-45]s", "--material", "Core", "--thickness", "1mm"});
    EXPECT_THAT(Run({"layup", document_, "list"}), HasSubstr("[45/-45]s"));
    Run({"undo", document_});
    EXPECT_THAT(Run({"layup", document_, "list"}), HasSubstr("[0/90]s"));
}

TEST_F(LayupActions, RemoveALayupAndLeaveNothingBehind) {
    Add("Skin", "[0/90]s");
    Add("Rib", "[0]");
    EXPECT_EQ(Run({"layup", document_, "remove", "Skin"}), "step 4: Remove layup Skin\n");

    EXPECT_THAT(Run({"layup", document_, "list"}), HasSubstr("1  Rib"));
    EXPECT_THAT(Run({"doctor", document_}), HasSubstr("sound"));
    Run({"undo", document_});
    EXPECT_THAT(Run({"layup", document_, "list"}), HasSubstr("layups: 2"));
}

TEST_F(LayupActions, RefuseATakenNameAndWhatIsNotThere) {
    Add("Skin", "[0/90]s");

    EXPECT_THAT(
        Refusal(1, {"layup", document_, "add", "Skin", "[0]", "--material", "T300", "--thickness", "1mm"}),
        HasSubstr("error[name-taken]"));
    EXPECT_THAT(
        Refusal(2, {"layup", document_, "add", "X", "[0]", "--material", "Steel", "--thickness", "1mm"}),
        HasSubstr("error[no-such-material]"));
    EXPECT_THAT(Refusal(2, {"layup", document_, "show", "Skim"}),
                HasSubstr("error[no-such-layup]: there is no layup \"Skim\" (did you mean Skin?)"));
    EXPECT_THAT(Refusal(2, {"layup", document_, "add", "X"}), HasSubstr("error[usage]"));
    EXPECT_THAT(Refusal(2, {"layup", document_, "frob"}), HasSubstr("error[usage]"));
    EXPECT_THAT(Run({"layup", document_, "list"}), HasSubstr("layups: 1"));
}

TEST_F(LayupActions, TellThemselvesAsJson) {
    Add("Skin", "[0/90]s");
    const auto json = nlohmann::json::parse(Run({"layup", document_, "list", "--json"}));

    EXPECT_EQ(json["layups"][0]["name"], "Skin");
    EXPECT_EQ(json["layups"][0]["layers"][1]["angle"]["value"], 90.0);
    EXPECT_EQ(json["layups"][0]["layers"][1]["material"], "T300/5208");
}

/// A document with the sandwich sample as a layup, of materials of the document.
class KeptLayupCard : public DocumentFolder {
protected:
    KeptLayupCard() {
        Run({"add", document_, File("ply.json", R"({"name": "T300/5208"})"),
             File("core.json", R"({"name": "Rohacell 71"})")});
        EXPECT_EQ(Run({"layup", document_, "add", card_}),
                  "step 2: Add layup Sandwich: [0/90] faces of T300/5208, 10 mm Rohacell 71 core\n");
    }

    nlohmann::json Extracted(const std::string& name) const {
        return nlohmann::json::parse(Run({"extract", document_, name}));
    }

    const std::string card_ = Sample("layups/sandwich_t300_rohacell.json");
    const std::string document_ = NewDocument();
};

TEST_F(KeptLayupCard, IsGivenBackByExtract) {
    EXPECT_EQ(Extracted("Sandwich"), nlohmann::json::parse(Contents(card_)));
    EXPECT_THAT(Run({"doctor", document_}), HasSubstr("sound"));
}

TEST_F(KeptLayupCard, IsShownWithItsSourcesAndConstants) {
    const std::string shown = Run({"layup", document_, "show", "Sandwich"});

    EXPECT_THAT(shown, HasSubstr("Arrangement made up for this project"));
    EXPECT_THAT(shown, HasSubstr("source: see materials/foam_rohacell71.json"));
    EXPECT_THAT(shown, HasSubstr("Rohacell 71: E1 = 105 MPa"));
}

TEST_F(KeptLayupCard, KeepsNotes) {
    const std::string noted = File("noted.json", R"({"name": "Noted", "notes": ["cure at 180 degC"],
        "ply_materials": {"T300/5208": {}},
        "layers": [{"material": "T300/5208", "thickness": 0.001, "angle_deg": 0}]})");
    Run({"layup", document_, "add", noted});

    EXPECT_EQ(Extracted("Noted"), nlohmann::json::parse(Contents(noted)));
}

TEST_F(KeptLayupCard, NamesItsPliesAsTheDocumentDoesByNow) {
    Run({"rename", document_, "T300", "Prepreg"});
    const auto card = Extracted("Sandwich");

    EXPECT_EQ(card["layers"][0]["material"], "Prepreg");
    EXPECT_EQ(card["ply_materials"]["Prepreg"]["E1"], 181e9);
    EXPECT_FALSE(card["ply_materials"].contains("T300/5208"));
}

TEST_F(KeptLayupCard, KeepsWhatWasSaidButNotWhatWasComputedWithOtherLayers) {
    Run({"layup", document_, "set", "Sandwich", "[0/90]", "--material", "T300", "--thickness", "1mm"});
    const auto card = Extracted("Sandwich");

    EXPECT_EQ(card["layers"].size(), 2u);
    EXPECT_EQ(card["description"], "Arrangement made up for this project from real ply and core data.");
    EXPECT_EQ(card["ply_materials"]["T300/5208"]["nu12"], 0.28);
    EXPECT_FALSE(card.contains("computed"));
    EXPECT_FALSE(card.contains("total_thickness"));
    Run({"undo", document_});
    EXPECT_EQ(Extracted("Sandwich"), nlohmann::json::parse(Contents(card_)));
}

TEST_F(KeptLayupCard, GoesWithItsLayupAndComesBackWithIt) {
    Run({"layup", document_, "remove", "Sandwich"});
    EXPECT_THAT(Refusal(2, {"extract", document_, "Sandwich"}), HasSubstr("error[no-such-material]"));
    EXPECT_THAT(Run({"doctor", document_}), HasSubstr("sound"));
    Run({"undo", document_});
    EXPECT_EQ(Extracted("Sandwich"), nlohmann::json::parse(Contents(card_)));
}

TEST_F(KeptLayupCard, GivesWayToAMaterialOfItsName) {
    Run({"add", document_, File("s.json", R"({"name": "Sandwich panel"})")});

    EXPECT_EQ(Extracted("Sandwich")["name"], "Sandwich panel");
    EXPECT_TRUE(Extracted("Sandwich:").contains("layers"));
    EXPECT_THAT(Refusal(2, {"extract", document_, "Sandwich:", "--to", "csv"}),
                HasSubstr("--to: error[usage]"));
}

TEST_F(KeptLayupCard, IsListedAfterTheMaterials) {
    EXPECT_THAT(Run({"list", document_}), HasSubstr("materials: 2\n\n"));
    const auto layup = nlohmann::json::parse(Run({"list", document_, "--json"})).at("layups").at(0);
    EXPECT_EQ(layup["number"], 1);
    EXPECT_EQ(layup["layers"], 5);
}

TEST_F(KeptLayupCard, IsComparedValueForValue) {
    Run({"layup", document_, "add", "Skin", "[0/90]", "--material", "T300", "--thickness", "1mm"});
    Run({"layup", document_, "set", "Skin", "[0/45]", "--material", "T300", "--thickness", "2mm"});

    EXPECT_EQ(RunZelmat({"diff", document_ + "#4", document_}).out, "");
    const ProgramRun run = RunZelmat({"diff", document_ + "#3", document_ + "#4"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out,
              "layup Skin\n  layers.thickness row 1: 1 mm -> 2 mm\n  layers.thickness row 2: 1 mm -> 2 mm\n"
              "  layers.angle_deg row 2: 90 deg -> 45 deg\n");
    EXPECT_THAT(RunZelmat({"diff", document_ + "#2", document_ + "#3"}).out,
                HasSubstr("layup Skin: only in "));
    const auto json = nlohmann::json::parse(RunZelmat({"diff", document_ + "#3", document_, "--json"}).out);
    EXPECT_EQ(json["same"], false);
    EXPECT_EQ(json["layups"][0]["differences"].size(), 3u);
}

}  // namespace
