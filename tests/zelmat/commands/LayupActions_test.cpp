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
    EXPECT_EQ(Run({"list", document_}), "materials: 0\n");
    EXPECT_THAT(Run({"layup", document_, "list"}), HasSubstr("layups: 2"));
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

}  // namespace
