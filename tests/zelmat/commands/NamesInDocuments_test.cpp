#include <gmock/gmock.h>

#include "tests/zelmat/support/DocumentFolder.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class NamesInDocuments : public DocumentFolder {
protected:
    NamesInDocuments() {
        Run({"add", document_, File("steel.json", R"({"name": "Steel", "E": "210 GPa", "nu": 0.3})")});
    }

    const std::string document_ = NewDocument();
};

TEST_F(NamesInDocuments, AreNotTakenFromACardThatNobodyCouldAskFor) {
    const std::vector<std::pair<std::string, std::string>> names = {
        {"", "a name cannot be empty"},
        {" ", "a name cannot be empty"},
        {"a\\u0000b", "a name cannot hold a NUL character"},
        {"#1", "'#1' cannot be a name: it means a number in the list"}};
    for (const auto& [name, problem] : names) {
        const std::string card = File("card.json", "{\n\"name\": \"" + name + "\"}");

        EXPECT_EQ(Refusal(1, {"add", document_, card}), "card.json:2: error[wrong-value]: " + problem + "\n");
    }
    EXPECT_THAT(Names(document_), ElementsAre("Steel"));
}

TEST_F(NamesInDocuments, AreNotGivenThatNobodyCouldAskFor) {
    const std::vector<std::pair<std::string, std::string>> names = {
        {"", "a name cannot be empty"},
        {"  ", "a name cannot be empty"},
        {"S\xff", "a name has to be UTF-8"},
        {"#2", "'#2' cannot be a name: it means a number in the list"}};
    for (const auto& [name, problem] : names) {
        EXPECT_THAT(Refusal(2, {"rename", document_, "Steel", name}), HasSubstr(problem));
        EXPECT_THAT(Refusal(2, {"copy", document_, "Steel", name}), HasSubstr(problem));
    }
    EXPECT_THAT(
        Refusal(2, {"layup", document_, "add", "#2", "[0]", "--material", "Steel", "--thickness", "1mm"}),
        HasSubstr("'#2' cannot be a name"));
    EXPECT_THAT(Names(document_), ElementsAre("Steel"));
}

}  // namespace
