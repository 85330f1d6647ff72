#include <CLI/CLI.hpp>
#include <optional>

#include "zelmat/cards/CardTemplate.h"
#include "zelmat/commands/Command.h"
#include "zelmat/commands/WrittenReport.h"
#include "zelmat/files/JsonText.h"
#include "zelmat/files/OutputFile.h"

namespace zelmat {

namespace {

/// Writes a card to fill in.
class New final : public Command {
public:
    void Declare(CLI::App& line) override {
        line.add_option("--card", name_, "Name of the material; a card for it is written")->required();
    }

    void Work(CommandContext& context) override {
        card_ = CardTemplate(name_);
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
        nlohmann::ordered_json json = {{"card", card_}, {"written", nullptr}};
        if (written_) AddWritten(json, "written", *written_);
        return json;
    }

private:
    std::string name_;
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
            "key \"//\" that explains it. A file that is there already stays beside it as FILE.bak.",
        .output = "File for the card; without it, standard output",
        .make = &MakeCommand<New>};
}

}  // namespace zelmat
