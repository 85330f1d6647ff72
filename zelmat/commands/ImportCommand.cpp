
#include "zelmat/cards/CardJson.h"
#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/frame/Command.h"
#include "zelmat/commands/frame/WriteGate.h"
#include "zelmat/commands/frame/WrittenReport.h"
#include "zelmat/exchange/calculix/ReadCalculix.h"
#include "zelmat/exchange/calculix/ReadCalculixLayup.h"
#include "zelmat/files/OutputFile.h"
#include "zelmat/layups/LayupCardText.h"

namespace zelmat {

namespace {

/// Brings the materials of a solver's deck into a card.
class Import final : public Command {
public:
    void Declare(Arguments& line) override {
        line.Add("DECK", deck_, "CalculiX deck; - is standard input").Required();
        line.Add("--layup", layup_,
                 "Read the composite shell section of this element set into a layup card instead");
        gate_.Declare(line);
    }

    void Work(CommandContext& context) override {
        Findings& findings = context.findings;
        if (context.options.units.empty()) {
            findings.Add({FindingKind::USAGE,
                          {"--units", 0},
                          "missing-option",
                          "a deck names no units, so --units has to",
                          {"as in --units mm-t-s"}});
            return;
        }
        if (!layup_.empty() && deck_ == "-") {
            findings.Add({FindingKind::USAGE,
                          {"--layup", 0},
                          "usage",
                          "a deck on standard input can be read once, for its materials alone",
                          {}});
            return;
        }
        const auto units = DeckUnits::Read(context.options.units, findings);
        if (!units) return;
        const auto materials = ReadCalculix(deck_, *units, findings);
        bool passes = !materials.empty();
        for (const Material& material : materials) passes = gate_.Passes(material, findings) && passes;
        if (!passes) return;
        auto text =
            layup_.empty() ? std::optional(JsonCardText(materials)) : LayupText(materials, *units, findings);
        if (!text) return;
        if (context.options.output.empty()) {
            text_ = std::move(text);
        } else {
            written_ = WriteOutputFile(context.options.output, *text, {deck_}, findings);
        }
    }

    void Print(std::ostream& out) const override {
        if (text_) out << *text_;
        if (written_) PrintWritten(out, "written", *written_);
    }

    nlohmann::ordered_json Json() const override {
        nlohmann::ordered_json json = {{"card", nullptr}, {"written", nullptr}};
        if (text_) json["card"] = nlohmann::ordered_json::parse(*text_);
        if (written_) AddWritten(json, "written", *written_);
        return json;
    }

private:
    std::optional<std::string> LayupText(const std::vector<Material>& materials, const DeckUnits& units,
                                         Findings& findings) const {
        const auto layup = ReadCalculixLayup(deck_, layup_, materials, units, findings);
        return layup ? std::optional(LayupCardText(*layup)) : std::nullopt;
    }

    std::string deck_;
    std::string layup_;  // element set; empty: the materials
    WriteGate gate_;
    std::optional<std::string> text_;  // when it goes to no file
    std::optional<WrittenFile> written_;
};

}  // namespace

CommandKind ImportCommand() {
    return {
        .name = "import",
        .brief = "read the materials of a solver's deck into a card",
        .text =
            "Read the material cards of a CalculiX deck into a card, several materials as a list. A deck\n"
            "names no units: --units says in which its numbers are. Other keywords are skipped and named.\n"
            "With --layup the composite shell section of an element set becomes a layup card.",
        .output = "File for the card; without it, standard output",
        .units = true,
        .make = &MakeCommand<Import>};
}

}  // namespace zelmat
