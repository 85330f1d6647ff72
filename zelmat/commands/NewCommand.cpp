#include <CLI/CLI.hpp>
#include <optional>

#include "zelmat/cards/CardSchema.h"
#include "zelmat/cards/CardTemplate.h"
#include "zelmat/commands/Command.h"
#include "zelmat/commands/WrittenReport.h"
#include "zelmat/files/JsonText.h"
#include "zelmat/files/OutputFile.h"

namespace zelmat {

namespace {

/// Writes a card to fill in, or the schema that all cards follow.
class New final : public Command {
public:
    void Declare(CLI::App& line) override {
        auto* card = line.add_option("--card", name_, "Name of the material; a card for it is written");
        line.add_flag("--schema", schema_, "Write the JSON Schema of cards instead")->excludes(card);
    }

    void Work(CommandContext& context) override {
        if (!schema_ && name_.empty()) {
            context.findings.Add({FindingKind::USAGE,
                                  {"zelmat new", 0},
                                  "usage",
                                  "--card is required, with a name",
                                  {"see zelmat help new"}});
            shown_ = false;
            return;
        }
        card_ = schema_ ? CardSchema() : CardTemplate(name_);
        const std::string& output = context.options.output;
        if (output.empty()) return;
        written_ = WriteOutputFile(output, JsonText(card_), {output}, context.findings);
        shown_ = false;
    }

    void Print(std::ostream& out) const override {
        if (shown_) out << JsonText(card_);
        if (written_) PrintWritten(out, "written", *written_);
    }

    nlohmann::ordered_json Json() const override {
        nlohmann::ordered_json json = {{schema_ ? "schema" : "card", card_}, {"written", nullptr}};
        if (written_) AddWritten(json, "written", *written_);
        return json;
    }

private:
    std::string name_;
    bool schema_ = false;
    nlohmann::ordered_json card_;
    std::optional<WrittenFile> written_;
    bool shown_ = true;
};

}  // namespace

CommandKind NewCommand() {
    return {
        .name = "new",
        .brief = "write a material card to fill in",
        .text =
            "Write a material card to fill in: null in the place of each number, and beside each block a\n"
            "key \"//\" that explains it. --schema writes the JSON Schema of cards. A file that is there\n"
            "already stays beside it as FILE.bak.",
        .output = "File for the card or the schema; without it, standard output",
        .make = &MakeCommand<New>};
}

}  // namespace zelmat
