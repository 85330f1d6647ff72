#include <CLI/CLI.hpp>

#include "zelmat/cards/WriteCard.h"
#include "zelmat/commands/Command.h"
#include "zelmat/commands/GivenMaterials.h"
#include "zelmat/commands/WrittenReport.h"
#include "zelmat/files/OutputFile.h"

namespace zelmat {

namespace {

std::vector<std::string> FormNames() {
    std::vector<std::string> names;
    for (const CardForm& form : CardForms()) names.push_back(form.name);
    return names;
}

/// Writes a material of a document as a card.
class Extract final : public Command {
public:
    void Declare(CLI::App& line) override {
        what_.Declare(line);
        line.add_option("--to", form_, "Form of the card")
            ->check(CLI::IsMember(FormNames()))
            ->capture_default_str();
    }

    void Work(CommandContext& context) override {
        const auto material = what_.ReadOne(context);
        if (!material) return;
        std::string text = FindCardForm(form_)->write({*material}, context.findings);
        const std::string& output = context.options.output;
        if (output.empty()) {
            text_ = std::move(text);
        } else {
            written_ = WriteOutputFile(output, text, {what_.Path()}, context.findings);
        }
    }

    void Print(std::ostream& out) const override {
        if (text_) out << *text_;
        if (written_) PrintWritten(out, "written", *written_);
    }

    nlohmann::ordered_json Json() const override {
        nlohmann::ordered_json json = {{"form", form_}, {"text", nullptr}, {"written", nullptr}};
        if (text_) json["text"] = *text_;
        if (written_) AddWritten(json, "written", *written_);
        return json;
    }

private:
    GivenMaterials what_;
    std::string form_ = "json";
    std::optional<std::string> text_;  // when it goes to no file
    std::optional<WrittenFile> written_;
};

}  // namespace

CommandKind ExtractCommand() {
    return {
        .name = "extract",
        .brief = "write a material of a document as a card",
        .text =
            "Write a material of a document as a card: all that the card said that it came from, to the\n"
            "units as they were written, with what was changed since. A behavior that is switched off is\n"
            "left out. Of several hyperelastic fits the one that the document uses comes first.",
        .output = "File for the card; without it, standard output",
        .make = &MakeCommand<Extract>};
}

}  // namespace zelmat
