#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>

#include "tests/zelmat/support/Program.h"
#include "tests/zelmat/support/TestFolder.h"
#include "zelmat/text/Printable.h"

// Text from cards, paths and options reaches a terminal as text, whatever it holds.

namespace {

using nlohmann::json;
using testing::HasSubstr;
using testing::Not;

/// Colours, forges a line, begins a sequence by a single character, and turns the direction of writing.
constexpr const char* kEvil = "\x1b[31mX\ncard.json: error[forged]: x\xc2\x9b\xe2\x80\xaey";
constexpr const char* kEvilShown = "\\x1b[31mX\\ncard.json: error[forged]: x\\x9b\\u202ey";

/// A file of a test, gone with it.
class Card {
public:
    explicit Card(const std::string& text, const std::string& name = "card.json")
        : path_(folder_.File(name, text)) {}

    const std::string& Path() const { return path_; }

private:
    const TestFolder folder_;
    const std::string path_;
};

/// Nothing but lines of printable UTF-8.
void ExpectPlainLines(const std::string& text) {
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        const std::string line = text.substr(begin, end - begin);
        EXPECT_EQ(zelmat::Printable(line), line);
        begin = end + 1;
    }
}

void ExpectHarmless(const ProgramRun& run) {
    ExpectPlainLines(run.out);
    ExpectPlainLines(run.err);
    EXPECT_THAT(run.out + run.err, Not(HasSubstr("\ncard.json: error[forged]")));
}

std::string MaterialCard() {
    json card = json::parse(std::ifstream(Sample("steel_s355.json")));
    for (const char* key : {"name", "description", "class"}) card[key] = kEvil;
    card["source"] = {kEvil, kEvil};
    card["notes"] = {kEvil};
    card["elastic"]["source"] = kEvil;
    card[kEvil] = {{"unknown", kEvil}};
    return card.dump(1);
}

std::string LayupCard() {
    const json layer = {{"material", kEvil}, {"thickness", 0.001}, {"angle_deg", 45}};
    return json({{"name", kEvil},
                 {"description", kEvil},
                 {"source", kEvil},
                 {"ply_materials", {{kEvil, {{"E1", 1e9}, {"source", kEvil}}}}},
                 {"layers", {layer}}})
        .dump(1);
}

TEST(ForeignText, OfAMaterialCardIsShownAsText) {
    const Card card(MaterialCard());

    for (const char* command : {"show", "summary"}) {
        const ProgramRun run = RunZelmat({command, card.Path()});
        ExpectHarmless(run);
        EXPECT_THAT(run.out, HasSubstr(kEvilShown));
    }
    const ProgramRun run = RunZelmat({"show", card.Path(), "--json"});
    ExpectHarmless(run);
    EXPECT_EQ(json::parse(run.out)["material"]["name"], kEvil);
}

TEST(ForeignText, OfALayupCardIsShownAsText) {
    const Card card(LayupCard());

    const ProgramRun run = RunZelmat({"layup", card.Path()});
    ExpectHarmless(run);
    EXPECT_THAT(run.out, HasSubstr(kEvilShown));

    const ProgramRun told = RunZelmat({"layup", card.Path(), "--json"});
    ExpectHarmless(told);
    EXPECT_EQ(json::parse(told.out)["layup"]["name"], kEvil);
}

TEST(ForeignText, OfPathsAndOptionsIsShownAsText) {
    for (const std::vector<std::string>& arguments : std::vector<std::vector<std::string>>{
             {"show", kEvil},
             {"show", "no\xff.json"},
             {kEvil},
             {"show", "two_tables.json", std::string("--") + kEvil},
             {"show", "two_tables.json", "--model", kEvil},
             {"show", "two_tables.json", "--catalogs", kEvil},
             {"layup", "[0/\x1b[31m]", "--material", kEvil, "--thickness", kEvil},
             {"layup", "[0]", "--material", kEvil, "--thickness", "1mm"},
             {"layup", "[0]", "--material", "no\xff", "--thickness", "1mm"},
             {"help", kEvil}}) {
        ExpectHarmless(RunZelmat(arguments));
        auto withJson = arguments;
        withJson.push_back("--json");
        const ProgramRun run = RunZelmat(withJson);
        ExpectHarmless(run);
        EXPECT_TRUE(json::accept(run.out)) << run.out;
    }
}

TEST(ForeignText, ThatIsNotUtf8IsAFindingWithItsLine) {
    const Card card("{\n\"name\": \"St\xe4hl\"}");

    const ProgramRun run = RunZelmat({"show", card.Path()});

    EXPECT_EQ(run.exitCode, 3);
    EXPECT_EQ(run.out, "");
    EXPECT_THAT(run.err, HasSubstr("card.json:2: error[broken-json]: "));
    EXPECT_THAT(run.err, HasSubstr("UTF-8"));
    ExpectHarmless(run);
}

TEST(ForeignText, ThatIsANumberTooSmallForADoubleIsAFindingWithItsLine) {
    const Card card(
        "{\"name\": \"Steel\",\n\"density\": {\"temperature_dependent\": false, \"columns\": "
        "[\"density\"],\n\"rows\": [[1e-400]]}}");

    const ProgramRun run = RunZelmat({"show", card.Path()});

    EXPECT_EQ(run.exitCode, 3);
    EXPECT_THAT(run.err,
                HasSubstr("card.json:3: error[broken-json]: the number \"1e-400\" is too small for a "
                          "double"));
}

}  // namespace
