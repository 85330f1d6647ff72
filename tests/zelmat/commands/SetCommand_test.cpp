#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "tests/zelmat/support/DocumentFolder.h"

namespace {

using nlohmann::json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

/// A document of a steel whose values are easily told.
class SetCommand : public DocumentFolder {
protected:
    SetCommand() {
        Run({"add", document_, File("steel.json", R"({"name": "Steel", "class": "metal",
            "elastic": {"temperature_dependent": false, "columns": ["E [GPa]", "nu"], "rows": [[210, 0.3]],
                        "source": "a handbook"},
            "density": {"temperature_dependent": false, "columns": ["density"], "rows": [[7850]]},
            "conductivity": {"temperature_dependent": true, "columns": ["conductivity", "T [degC]"],
                             "rows": [[45, 20], [43, 100]]},
            "thermal_expansion": {"temperature_dependent": false, "columns": ["thermal_expansion [µm/m/K]"],
                                  "rows": [[12]], "reference_temperature": "20 degC"}})")});
    }

    json Card() const { return json::parse(Run({"extract", document_, "Steel"})); }

    std::string RefusalOf(int exitCode, const std::vector<std::string>& changes) {
        const std::string before = Contents(document_);
        std::vector<std::string> arguments = {"set", document_, "Steel"};
        arguments.insert(arguments.end(), changes.begin(), changes.end());
        std::string refusal = Refusal(exitCode, arguments);
        EXPECT_TRUE(Contents(document_) == before) << refusal;
        return refusal;
    }

    const std::string document_ = NewDocument();
};

TEST_F(SetCommand, ChangesANumberAndKeepsTheUnitInWhichItIsWritten) {
    EXPECT_EQ(Run({"set", document_, "Steel", "elastic.youngs_modulus=205GPa", "density=7.9 g/cm^3"}),
              "step 2: Set elastic.youngs_modulus, density of Steel\n");

    const json card = Card();
    EXPECT_EQ(card["elastic"]["columns"][0], "youngs_modulus [GPa]");
    EXPECT_EQ(card["elastic"]["rows"], json::parse("[[205, 0.3]]"));
    EXPECT_EQ(card["elastic"]["source"], "a handbook");
    EXPECT_EQ(card["density"]["columns"][0], "density [g/cm^3]");
    const json shown = json::parse(Run({"show", document_, "--json"}));
    EXPECT_EQ(shown["material"]["behaviors"][1]["tables"][0]["rows"], json::parse("[[7900.0]]"));
}

TEST_F(SetCommand, KnowsTheNamesThatCardsHaveForTheirValues) {
    EXPECT_EQ(Run({"set", document_, "Steel", "E=205GPa", "elastic.nu=0.29", "rho=7.9 g/cm^3",
                   "expansion.Tref=25degC"}),
              "step 2: Set E, elastic.nu, rho, expansion.Tref of Steel\n");

    const json card = Card();
    EXPECT_EQ(card["elastic"]["rows"], json::parse("[[205, 0.29]]"));
    EXPECT_EQ(card["density"]["rows"], json::parse("[[7.9]]"));
    EXPECT_EQ(card["thermal_expansion"]["reference_temperature"], "25 degC");
}

TEST_F(SetCommand, RefusesOneValueUnderTwoOfItsNames) {
    EXPECT_THAT(RefusalOf(2, {"density=7900kg/m3", "density.density=7800kg/m3"}),
                HasSubstr("error[given-twice]: \"density.density\" is given twice (it means density)"));
    EXPECT_THAT(RefusalOf(2, {"E=200GPa", "elastic.youngs_modulus=210GPa"}), HasSubstr("error[given-twice]"));
}

TEST_F(SetCommand, TakesAListOfNumbers) {
    Run({"set", document_, "Steel", "user_material.type=MECHANICAL", "user_material.constants=[1, 2.5]"});
    EXPECT_EQ(Card()["user_material"]["constants"], json::parse("[1, 2.5]"));
    Run({"set", document_, "Steel", "user_material.constants=3"});
    EXPECT_EQ(Card()["user_material"]["constants"], json::parse("[3]"));

    EXPECT_THAT(RefusalOf(2, {"user_material.constants=1,x"}),
                HasSubstr("error[wrong-value]: user_material.constants: 'x'"));
}

TEST_F(SetCommand, ChangesWhatIsForInformation) {
    Run({"set", document_, "Steel", "other_properties.E1=181 GPa", "other_properties.nu12=0.28"});
    EXPECT_EQ(Card()["other_properties"], json::parse(R"({"E1": "181 GPa", "nu12": 0.28})"));

    Run({"set", document_, "Steel", "other_properties.E1="});
    EXPECT_EQ(Card()["other_properties"], json::parse(R"({"nu12": 0.28})"));
    Run({"set", document_, "Steel", "other_properties.nu12="});
    EXPECT_FALSE(Card().contains("other_properties"));
}

TEST_F(SetCommand, TakesATableFromAFileWhoseNameIsInCapitals) {
    Run({"set", document_, "Steel", "elastic=" + File("E.CSV", "E [GPa],nu\n200,0.28\n")});

    EXPECT_EQ(Card()["elastic"]["rows"], json::parse("[[200, 0.28]]"));
}

TEST_F(SetCommand, RefusesAFileOfTextsInTheirPlaceOrOfNoTable) {
    for (const char* text : {R"({"columns": [1], "rows": [[1]]})", R"({"columns": ["E [GPa]"], "rows": 1})",
                             R"({"columns": ["E [GPa]"], "rows": [1]})", "{}"}) {
        EXPECT_THAT(RefusalOf(1, {"elastic=" + File("t.csv", text), "elastic.poissons_ratio=0.3"}),
                    HasSubstr("t.csv: error[no-table]: expected one table with a header line"))
            << text;
    }
}

TEST_F(SetCommand, SaysHowANameAndAWholeTableAreChanged) {
    EXPECT_THAT(RefusalOf(2, {"name=Iron"}), HasSubstr("zelmat rename gives it another"));
    EXPECT_THAT(RefusalOf(2, {"elastic=205GPa"}),
                HasSubstr("error[unknown-key]: elastic is no single value (a whole table is a file: "
                          "elastic=FILE.csv, known: youngs_modulus, poissons_ratio, source, enabled)"));
}

TEST_F(SetCommand, IsTakenBackByUndo) {
    const json before = Card();
    Run({"set", document_, "Steel", "elastic.youngs_modulus=205GPa", "class=steel", "heat_generation=on"});
    EXPECT_NE(Card(), before);
    Run({"undo", document_});

    EXPECT_EQ(Card(), before);
}

TEST_F(SetCommand, TakesAWholeTableFromAFile) {
    const std::string curve = File("curve.csv",
                                   "yield_stress [MPa],plastic_strain [%],temperature [degC]\n"
                                   "355,0,20\n420,5,20\n");
    Run({"set", document_, "Steel", "plastic.hardening=isotropic", "plastic=" + curve});

    const json card = Card();
    EXPECT_EQ(card["plastic"]["hardening"], "isotropic");
    EXPECT_EQ(card["plastic"]["rows"], json::parse("[[355, 0, 20], [420, 5, 20]]"));
    EXPECT_EQ(card["plastic"]["columns"][0], "yield_stress [MPa]");
}

TEST_F(SetCommand, ChangesValuesBesideTheTables) {
    Run({"set", document_, "Steel", "thermal_expansion.reference_temperature=300 K", "description=rolled"});

    EXPECT_EQ(Card()["thermal_expansion"]["reference_temperature"], 300.0);
    EXPECT_EQ(Card()["description"], "rolled");
}

TEST_F(SetCommand, MakesABehaviorThatWasNotThere) {
    Run({"set", document_, "Steel", "specific_heat=460 J/kg/K"});

    EXPECT_EQ(Card()["specific_heat"]["rows"], json::parse("[[460]]"));
}

TEST_F(SetCommand, SwitchesABehaviorOffAndOnWithAllItsData) {
    const json before = Card();
    Run({"set", document_, "Steel", "elastic.enabled=off"});
    EXPECT_FALSE(Card().contains("elastic"));
    Run({"set", document_, "Steel", "density=7800 kg/m3"});
    Run({"set", document_, "Steel", "elastic.enabled=on"});

    EXPECT_EQ(Card()["elastic"], before["elastic"]);
}

TEST_F(SetCommand, RefusesToSwitchOnWhatHasNoData) {
    EXPECT_THAT(RefusalOf(1, {"specific_heat.enabled=on"}), HasSubstr("error[no-data]"));
    EXPECT_EQ(RefusalOf(1, {"gasket.enabled=on"}),
              "a.zeldoc: error[no-data]: gasket of Steel has no data to be switched on (give it some: zelmat "
              "set with a number or a table)\n");
}

TEST_F(SetCommand, RefusesANumberWithoutItsUnit) {
    EXPECT_THAT(RefusalOf(2, {"density=7900"}), HasSubstr("error[wrong-value]: density.density: "));
    EXPECT_THAT(RefusalOf(2, {"density=7900 K"}), HasSubstr("error[wrong-value]"));
    EXPECT_THAT(RefusalOf(2, {"density=heavy"}), HasSubstr("error[wrong-value]"));
    EXPECT_THAT(RefusalOf(2, {"thermal_expansion.reference_temperature=20"}),
                HasSubstr("error[wrong-value]"));
}

TEST_F(SetCommand, RefusesOneNumberForSeveralRows) {
    EXPECT_THAT(RefusalOf(2, {"conductivity=44 W/m/K"}),
                HasSubstr("error[several-rows]: conductivity has 2 rows: one number does not say which (give "
                          "the whole table: conductivity=FILE.csv)"));
}

TEST_F(SetCommand, RefusesKeysThatThereAreNotAndNamesTheNearest) {
    EXPECT_THAT(RefusalOf(2, {"elastc.youngs_modulus=1GPa"}), HasSubstr("did you mean elastic?"));
    EXPECT_THAT(RefusalOf(2, {"elastic.yongs_modulus=1GPa"}), HasSubstr("did you mean youngs_modulus?"));
    EXPECT_THAT(RefusalOf(2, {"elastic=1GPa"}), HasSubstr("error"));
    EXPECT_THAT(RefusalOf(2, {"density"}), HasSubstr("error[no-change]"));
    EXPECT_THAT(RefusalOf(2, {"=1"}), HasSubstr("error[no-change]"));
}

TEST_F(SetCommand, RefusesWhatTheChecksRefuse) {
    EXPECT_THAT(RefusalOf(1, {"density=-1 kg/m3"}), HasSubstr("error["));
    EXPECT_THAT(RefusalOf(1, {"elastic.poissons_ratio=0.7"}), HasSubstr("error["));
}

TEST_F(SetCommand, ChangesNothingWhenOneOfSeveralValuesIsRefused) {
    RefusalOf(1, {"elastic.youngs_modulus=205GPa", "density=-1 kg/m3"});
    RefusalOf(2, {"elastic.youngs_modulus=205GPa", "colour=red"});
}

TEST_F(SetCommand, RefusesATableThatLacksAColumn) {
    EXPECT_THAT(RefusalOf(1, {"elastic=" + File("t.csv", "youngs_modulus [GPa]\n210\n")}),
                HasSubstr("error["));
    EXPECT_THAT(RefusalOf(3, {"elastic=" + Path("none.csv")}), HasSubstr("none.csv: error[unreadable]"));
}

TEST_F(SetCommand, RefusesAColumnOfAFileThatNamesNoUnit) {
    EXPECT_THAT(RefusalOf(1, {"elastic=" + File("t.csv", "youngs_modulus,poissons_ratio\n210,0.3\n")}),
                HasSubstr("t.csv: error[no-unit]: the column \"youngs_modulus\" has no unit"));
}

TEST_F(SetCommand, RefusesAMaterialThatIsNotThere) {
    EXPECT_THAT(Refusal(2, {"set", document_, "Stel", "density=1 kg/m3"}), HasSubstr("did you mean Steel?"));
}

TEST_F(SetCommand, IsNotStoppedByWhatWasWrongBefore) {
    Refusal(1, {"add", document_, "--keep-going",
                File("bad.json", R"({"name": "Bad", "density": {"temperature_dependent": false,
                    "columns": ["density"], "rows": [[-1]]}, "specific_heat": {"temperature_dependent": false,
                    "columns": ["specific_heat"], "rows": [[460]]}})")});

    Run({"set", document_, "Bad", "specific_heat=470 J/kg/K"});
}

TEST_F(SetCommand, SaysWhenNothingChanges) {
    EXPECT_EQ(Run({"set", document_, "Steel", "class=metal"}), "nothing has changed\n");
}

TEST_F(SetCommand, SaysWhenABehaviorIsSwitchedAlready) {
    EXPECT_EQ(Run({"set", document_, "Steel", "elastic.enabled=on"}), "nothing has changed\n");
    EXPECT_EQ(Run({"set", document_, "Steel", "specific_heat.enabled=off"}), "nothing has changed\n");
}

TEST_F(SetCommand, KeepsInItsStepWhatItChangedAndNothingElse) {
    Run({"set", document_, "Steel", "elastic.youngs_modulus=205GPa"});
    Run({"set", document_, "Steel", "description=rolled"});
    const json steps = json::parse(Run({"log", document_, "--json"}))["steps"];

    // Each entry: the feature's number, slot, attribute and the old value, some bytes. Modulus: one in
    // newtons per square metre and one as it was written.
    EXPECT_LT(steps[1]["size"]["value"], 40);
    EXPECT_LT(steps[2]["size"]["value"], 10);
}

TEST_F(SetCommand, GivesATableAnotherSource) {
    Run({"set", document_, "Steel", "elastic.source=own test"});
    EXPECT_EQ(Card()["elastic"]["source"], "own test");
    Run({"set", document_, "Steel", "elastic.source=", "density.source=a balance"});
    EXPECT_FALSE(Card()["elastic"].contains("source"));
    EXPECT_EQ(Card()["density"]["source"], "a balance");
    EXPECT_THAT(RefusalOf(2, {"specific_heat.source=own test"}), HasSubstr("error[no-table]"));
}

TEST_F(SetCommand, SaysThatASourceToldOfTheOldNumbers) {
    EXPECT_EQ(Refusal(0, {"set", document_, "Steel", "elastic.youngs_modulus=205GPa"}),
              "a.zeldoc: note[old-source]: the source of elastic stays and told of the old numbers "
              "(elastic.source=... names another, elastic.source= takes it away)\n");
    EXPECT_EQ(Refusal(0, {"set", document_, "Steel", "elastic.youngs_modulus=206GPa", "elastic.source=own"}),
              "");
    EXPECT_EQ(Refusal(0, {"set", document_, "Steel", "density=7800kg/m3"}), "");
}

TEST_F(SetCommand, RefusesAKeyThatIsGivenTwice) {
    EXPECT_THAT(RefusalOf(2, {"density=1 g/cm^3", "density=2 g/cm^3"}),
                HasSubstr("error[given-twice]: \"density\" is given twice"));
}

/// Two materials to be renamed, copied and removed.
class DocumentOfTwo : public DocumentFolder {
protected:
    const std::string document_ = DocumentOf({"copper_ofhc.json", "foam_rohacell71.json"});
};

TEST_F(DocumentOfTwo, RenamesAMaterial) {
    EXPECT_EQ(Run({"rename", document_, "OFHC", "Copper"}), "step 2: Rename OFHC copper to Copper\n");
    EXPECT_THAT(Names(document_), ElementsAre("Copper", "PMI foam Rohacell 71"));
    Run({"undo", document_});
    EXPECT_THAT(Names(document_), ElementsAre("OFHC copper", "PMI foam Rohacell 71"));
}

TEST_F(DocumentOfTwo, RefusesToRenameToATakenOrEmptyName) {
    EXPECT_EQ(Refusal(1, {"rename", document_, "#2", "OFHC copper"}),
              "a.zeldoc: error[name-taken]: the document has a material \"OFHC copper\" already (#1)\n");
    EXPECT_THAT(Refusal(2, {"rename", document_, "#2", ""}), HasSubstr("error[usage]"));
    EXPECT_EQ(Run({"rename", document_, "#1", "OFHC copper"}), "nothing has changed\n");
}

TEST_F(DocumentOfTwo, CopiesAMaterialUnderAFreeName) {
    Run({"copy", document_, "OFHC"});
    EXPECT_EQ(Run({"copy", document_, "OFHC copper"}),
              "copied to: OFHC copper (3)\nstep 3: Copy OFHC copper to OFHC copper (3)\n");
    Run({"copy", document_, "#1", "Mine"});
    EXPECT_THAT(Names(document_), ElementsAre("OFHC copper", "PMI foam Rohacell 71", "OFHC copper (2)",
                                              "OFHC copper (3)", "Mine"));
    json copy = json::parse(Run({"extract", document_, "Mine"}));
    copy["name"] = "OFHC copper";
    EXPECT_EQ(copy, json::parse(Run({"extract", document_, "#1"})));
}

TEST_F(DocumentOfTwo, RefusesToCopyToATakenName) {
    EXPECT_THAT(Refusal(1, {"copy", document_, "#1", "PMI foam Rohacell 71"}),
                HasSubstr("error[name-taken]"));
}

TEST_F(DocumentOfTwo, ChangesACopyAndNotTheOriginal) {
    Run({"copy", document_, "#1", "Mine"});
    Run({"set", document_, "Mine", "density=1 g/cm^3"});

    EXPECT_EQ(json::parse(Run({"extract", document_, "#1"}))["density"]["rows"], json::parse("[[8960.0]]"));
}

TEST_F(DocumentOfTwo, CopiesAMaterialIntoAnotherDocumentSwitchedOffBehaviorsIncluded) {
    const std::string other = NewDocument("other.zeldoc");
    Run({"set", document_, "#1", "elastic.enabled=off"});
    Run({"copy", document_, "#1", other});
    Run({"copy", document_, "#1", other});

    EXPECT_THAT(Names(other), ElementsAre("OFHC copper", "OFHC copper (2)"));
    EXPECT_FALSE(json::parse(Run({"extract", other, "#1"})).contains("elastic"));
    Run({"set", other, "#1", "elastic.enabled=on"});
    Run({"set", document_, "#1", "elastic.enabled=on"});
    EXPECT_EQ(Run({"extract", other, "#1"}), Run({"extract", document_, "#1"}));
}

TEST_F(DocumentOfTwo, CopiesTheWholeDocumentWithItsHistory) {
    EXPECT_EQ(Run({"copy", document_, Path("b.zeldoc")}), "copied to: b.zeldoc\n");
    EXPECT_THAT(Names(Path("b.zeldoc")), ElementsAre("OFHC copper", "PMI foam Rohacell 71"));
    EXPECT_EQ(Run({"undo", Path("b.zeldoc")}), "undone: step 1: Add OFHC copper, PMI foam Rohacell 71\n");
    EXPECT_THAT(Refusal(3, {"copy", document_, Path("b.zeldoc")}), HasSubstr("error[not-copied]"));
}

TEST_F(DocumentOfTwo, RemovesAMaterialAndUndoBringsItBack) {
    const std::string card = Run({"extract", document_, "#1"});
    EXPECT_EQ(Run({"remove", document_, "OFHC"}), "step 2: Remove OFHC copper\n");
    EXPECT_THAT(Names(document_), ElementsAre("PMI foam Rohacell 71"));
    Run({"undo", document_});
    EXPECT_EQ(Run({"extract", document_, "#1"}), card);
}

TEST_F(DocumentOfTwo, LeavesNothingOfARemovedMaterialBehind) {
    Run({"remove", document_, "#1"});
    Run({"remove", document_, "#1"});

    EXPECT_EQ(Run({"doctor", document_}), "a.zeldoc: sound\n");
    EXPECT_EQ(Run({"list", document_}), "materials: 0\n");
}

TEST_F(DocumentOfTwo, GivesBackTheCardsThatItWasMadeOf) {
    EXPECT_EQ(Run({"extract", document_, "#1"}),
              Run({"convert", Sample("copper_ofhc.json"), "--to", "json"}));
    EXPECT_EQ(Run({"extract", document_, "#2", "--to", "csv"}),
              Run({"convert", Sample("foam_rohacell71.json"), "--to", "csv"}));
    Run({"extract", document_, "#1", "--output", Path("copper.json")});
    EXPECT_EQ(Contents(Path("copper.json")), Run({"extract", document_, "#1"}));
}

TEST_F(DocumentOfTwo, IsCompactedAndExamined) {
    EXPECT_THAT(Run({"compact", document_}), HasSubstr("a.zeldoc: "));
    EXPECT_EQ(Run({"doctor", document_}), "a.zeldoc: sound\n");
    EXPECT_THAT(Names(document_), ElementsAre("OFHC copper", "PMI foam Rohacell 71"));
    EXPECT_THAT(Refusal(3, {"doctor", Path("none.zeldoc")}), HasSubstr("none.zeldoc: error"));
    EXPECT_THAT(Refusal(3, {"compact", File("x", "no document")}), HasSubstr("x: error"));
}

}  // namespace
