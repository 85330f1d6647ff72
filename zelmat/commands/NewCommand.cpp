#include <optional>

#include "zelmat/cards/CardSchema.h"
#include "zelmat/cards/CardTemplate.h"
#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/frame/Command.h"
#include "zelmat/commands/frame/WrittenReport.h"
#include "zelmat/commands/reports/HistoryOrigin.h"
#include "zelmat/documents/DocumentToChange.h"
#include "zelmat/files/JsonText.h"
#include "zelmat/files/OutputFile.h"
#include "zelmat/text/Printable.h"

namespace zelmat {

namespace {

/// Makes an empty document; or writes a card to fill in, or the schema that all cards follow.
class New final : public Command {
public:
    void Declare(Arguments& line) override {
        line.Add("DOC", document_, "Path of a document to make");
        const Argument card = line.Add("--card", name_, "Name of the material; a card for it is written");
        line.AddFlag("--schema", schema_, "Write the JSON Schema of cards instead").Excludes(card);
    }

    void Work(CommandContext& context) override {
        const bool card = schema_ || !name_.empty();
        if (card == !document_.empty()) {
            context.findings.Add({FindingKind::USAGE,
                                  {"zelmat new", 0},
                                  "usage",
                                  "expected the path of a document, or --card with a name",
                                  {"see zelmat help new"}});
        } else if (card) {
            MakeCard(context);
        } else {
            MakeDocument(context);
        }
    }

    void Print(std::ostream& out) const override {
        if (shown_) out << JsonText(card_);
        if (written_) PrintWritten(out, "written", *written_);
        if (!made_.empty()) out << "made: " << Printable(made_) << '\n';
    }

    nlohmann::ordered_json Json() const override {
        nlohmann::ordered_json json = {{schema_ ? "schema" : "card", card_}, {"written", nullptr}};
        if (written_) AddWritten(json, "written", *written_);
        if (!made_.empty()) json["written"] = made_;
        return json;
    }

private:
    void MakeDocument(CommandContext& context) {
        const auto document = DocumentToChange::Create(document_, context.options.catalogs, context.findings);
        if (!document) return;
        SetStoredPressureUnit(document->Document());
        if (document->Save(OriginOf(context), context.findings)) made_ = document_;
    }

    void MakeCard(CommandContext& context) {
        card_ = schema_ ? CardSchema() : CardTemplate(name_);
        const std::string& output = context.options.output;
        shown_ = output.empty();
        if (shown_) return;
        written_ = WriteOutputFile(output, JsonText(card_), {output}, context.findings);
    }

    std::string document_;  // path; empty: a card is wanted
    std::string name_;
    bool schema_ = false;
    nlohmann::ordered_json card_;
    std::optional<WrittenFile> written_;
    bool shown_ = false;
    std::string made_;  // path of the document, once it is
};

}  // namespace

CommandKind NewCommand() {
    return {
        .name = "new",
        .brief = "make an empty document, or a material card to fill in",
        .text =
            "Make an empty document in a file that is not there yet.\n"
            "With --card, write a material card to fill in: null in the place of each number, and beside "
            "each block a\n"
            "key \"//\" that explains it. --schema writes the JSON Schema of cards. A file that is there\n"
            "already stays beside it as FILE.bak.",
        .output = "File for the card or the schema; without it, standard output",
        .make = &MakeCommand<New>};
}

}  // namespace zelmat
