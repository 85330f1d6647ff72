#include <gmock/gmock.h>

#include <filesystem>
#include <nlohmann/json.hpp>

#include "tests/zelmat/support/DocumentFolder.h"
#include "zelmat/documents/DocumentForm.h"

namespace {

using nlohmann::json;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

constexpr const char* kSteel = R"({"name": "Steel", "density": {"temperature_dependent": false,
    "columns": ["density"], "rows": [[7850]]}})";
constexpr const char* kFaulty = R"({"name": "Faulty", "density": {"temperature_dependent": false,
    "columns": ["density"], "rows": [[-1]]}})";

/// Documents where a command takes cards, and files that look like documents.
using DocumentsAsInput = DocumentFolder;

TEST_F(DocumentsAsInput, AreCheckedMaterialByMaterialAndLayupByLayup) {
    const std::string document = NewDocument();
    Refusal(1, {"add", document, "--keep-going", File("s.json", kSteel), File("f.json", kFaulty)});
    Run({"layup", document, "add", "Plate", "[0/90]s", "--material", "Steel", "--thickness", "1mm"});
    const ProgramRun run = RunZelmat({"check", document});

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out, document + ": Steel: clean\n" + document + ": Faulty: 1 error\n" + document +
                           ": Plate: clean\n");
    EXPECT_THAT(run.err,
                HasSubstr("a.zeldoc: error[density]: 'Faulty': row 1 of density: density is -1 kg/m3"));
}

TEST_F(DocumentsAsInput, InTheirTextFormAreChecked) {
    const ProgramRun run = RunZelmat({"check", Sample("older/copper_and_rubber.json"), "--json"});

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(json::parse(run.out).at("cards").at(1).at("name"), "Vulcanised natural rubber");
}

TEST_F(DocumentsAsInput, AreConvertedToTheCardsThatTheyWereMadeOf) {
    const std::string document = DocumentOf({"copper_ofhc.json"});

    EXPECT_EQ(Run({"convert", document, "--to", "json"}),
              Run({"convert", Sample("copper_ofhc.json"), "--to", "json"}));
}

TEST_F(DocumentsAsInput, AreSummedUp) {
    const std::string document = DocumentOf({"copper_ofhc.json", "steel_s355.json"});

    EXPECT_THAT(Run({"summary", document}), HasSubstr("\nmaterials: 2, features: "));
}

TEST_F(DocumentsAsInput, WithoutTheirBeginningAreNoCards) {
    const std::string empty = File("empty.zeldoc", "");
    const std::string broken = File("broken.zeldoc", std::string("\1\2\0\3", 4));
    for (const char* command : {"list", "show", "check"}) {
        EXPECT_THAT(Refusal(3, {command, empty}), EndsWith("empty.zeldoc: error[unreadable]: is empty\n"));
        EXPECT_THAT(Refusal(3, {command, broken}),
                    EndsWith("broken.zeldoc: error[unreadable]: is no document\n"));
    }
    EXPECT_EQ(Contents(empty), "");
}

TEST_F(DocumentsAsInput, AreNeitherMadeNorChangedWhereAStreamIsNamed) {
    const std::string card = File("s.json", kSteel);

    EXPECT_THAT(Refusal(2, {"new", "-"}),
                StartsWith("-: error[no-path]: a document that is made or changed"));
    EXPECT_THAT(Refusal(2, {"add", "-", card}), StartsWith("-: error[no-path]"));
    EXPECT_THAT(Refusal(2, {"undo", "-"}), StartsWith("-: error[no-path]"));
}

TEST_F(DocumentsAsInput, OfTheNameOfAStreamAreNotTakenForIt) {
    Run({"new", Path("-")});
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(Path(""));

    EXPECT_FALSE(zelmat::IsDocumentFile("-"));
    EXPECT_TRUE(zelmat::IsDocumentFile("./-"));

    std::filesystem::current_path(before);
}

TEST_F(DocumentsAsInput, InTheirTextFormKeepNoSteps) {
    EXPECT_THAT(
        Refusal(2, {"log", Sample("older/copper_and_rubber.json")}),
        HasSubstr("error[text-document]: a document in its text form keeps no steps (zelmat upgrade "));
}

}  // namespace
