
#include "zelmat/cards/WriteCard.h"
#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/frame/Command.h"
#include "zelmat/commands/frame/WrittenReport.h"
#include "zelmat/commands/inputs/GivenMaterials.h"
#include "zelmat/commands/inputs/MaterialChoice.h"
#include "zelmat/files/OutputFile.h"
#include "zelmat/layups/LayupCardText.h"
#include "zelmat/layups/WholeLayup.h"

namespace zelmat {

namespace {

/// Writes a material or a layup of a document as a card.
class Extract final : public Command {
public:
    void Declare(Arguments& line) override {
        what_.Declare(line);
        line.Add("--to", form_, "Form of the card").OneOf(CardFormNames()).ShowsDefault();
    }

    void Work(CommandContext& context) override {
        auto text = CardText(context);
        if (!text) return;
        const std::string& output = context.options.output;
        if (output.empty()) {
            text_ = std::move(text);
        } else {
            written_ = WriteOutputFile(output, *text, {what_.Path()}, context.findings);
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
    std::optional<std::string> CardText(CommandContext& context) const {
        Findings& findings = context.findings;
        GivenFile given = OpenGiven(what_.Path(), context.options, findings);
        std::vector<Material> materials;
        if (given.document) materials = given.document->Materials(findings);
        if (given.text) materials = CardsOfText(std::move(*given.text), what_.Path(), findings, what_.How());
        if (findings.HasErrors()) return std::nullopt;
        if (given.document) {
            const auto layup = FoundLayup(*given.document, materials, findings);
            if (layup) return LayupText(*layup, findings);
        }
        const auto material = what_.OneOf(std::move(materials), findings);
        return material ? std::optional(FindCardForm(form_)->write({*material}, findings)) : std::nullopt;
    }

    /// The layup that the name means; nothing when it can mean a material. A whole name comes before a
    /// beginning.
    std::optional<WholeLayup> FoundLayup(DocumentToRead& document, const std::vector<Material>& materials,
                                         Findings& findings) const {
        const std::string& wanted = what_.Wanted();
        if (wanted.empty() || wanted.starts_with('#')) return std::nullopt;
        const auto layups = LayupsOf(document.Document());
        std::vector<std::string> names;
        for (const DocumentLayup& layup : layups) names.push_back(layup.name);
        Findings none;
        const auto chosen = ChooseMaterial(names, wanted, {}, none, "layup");
        if (!chosen) return std::nullopt;
        const bool whole = names[*chosen] == wanted;
        for (const Material& material : materials) {
            if (whole ? material.name == wanted : material.name.starts_with(wanted)) return std::nullopt;
        }
        return ReadWholeLayup(document.Document(), layups[*chosen], document.Name(), findings);
    }

    std::optional<std::string> LayupText(const WholeLayup& layup, Findings& findings) const {
        if (form_ == "json") return LayupCardText(layup.card);
        findings.Add({FindingKind::USAGE, {"--to", 0}, "usage", "a layup card is in JSON alone", {}});
        return std::nullopt;
    }

    GivenMaterials what_;
    std::string form_ = "json";
    std::optional<std::string> text_;  // when it goes to no file
    std::optional<WrittenFile> written_;
};

}  // namespace

CommandKind ExtractCommand() {
    return {
        .name = "extract",
        .brief = "write a material or layup of a document as a card",
        .text =
            "Write a material of a document as a card: all that the card said that it came from, to the\n"
            "units as they were written, with what was changed since. A behavior that is switched off is\n"
            "left out. Of several hyperelastic fits the one that the document uses comes first. A name that\n"
            "no material has is a layup's: it is written as a layup card.",
        .output = "File for the card; without it, standard output",
        .make = &MakeCommand<Extract>};
}

}  // namespace zelmat
