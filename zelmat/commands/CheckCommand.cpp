#include <algorithm>

#include "zelmat/cards/ReadCard.h"
#include "zelmat/checks/Checks.h"
#include "zelmat/checks/RulesPage.h"
#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/frame/Command.h"
#include "zelmat/commands/inputs/CardInput.h"
#include "zelmat/commands/inputs/GivenLayups.h"
#include "zelmat/commands/inputs/GivenMaterials.h"
#include "zelmat/commands/inputs/WrongForm.h"
#include "zelmat/files/ReadText.h"
#include "zelmat/layups/LayupCardReader.h"
#include "zelmat/text/CountText.h"
#include "zelmat/text/Printable.h"
#include "zelmat/text/QuotedText.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

/// What one card, or one material or layup of a document, came to.
struct CheckedCard {
    std::string file;
    std::string name;  ///< of the material or layup; empty when the card could not be read
    std::size_t errors = 0;
    std::size_t warnings = 0;
};

std::string Verdict(const CheckedCard& card) {
    if (card.errors + card.warnings == 0) return "clean";
    std::string text;
    if (card.errors > 0) text = CountText(card.errors, "error");
    if (card.warnings > 0) text += (text.empty() ? "" : ", ") + CountText(card.warnings, "warning");
    return text;
}

/// The findings about one of the materials or layups of a document, where no line tells which one.
Findings Named(const Findings& findings, const std::string& name) {
    Findings named;
    for (Finding finding : findings.All()) {
        finding.text = QuotedText(name) + ": " + finding.text;
        named.Add(std::move(finding));
    }
    return named;
}

/// Reads cards and documents and holds them against every rule. Writes nothing anywhere.
class Check final : public Command {
public:
    void Declare(Arguments& line) override {
        const Argument rules = line.AddFlag("--rules", rules_, "Print every rule instead, as Markdown");
        line.Add("CARD", paths_, "Material cards, layup cards or documents; - is standard input")
            .Excludes(rules);
        DeclareCardReading(line, how_);
    }

    void Work(CommandContext& context) override {
        if (paths_.empty() && !rules_) {
            context.findings.Add({FindingKind::USAGE,
                                  {"zelmat check", 0},
                                  "usage",
                                  "CARD is required",
                                  {"see zelmat help check"}});
        }
        for (const std::string& path : paths_) {
            Findings own;
            const GivenFile given = OpenGiven(path, context.options, own);
            if (given.document) {
                context.findings.Add(own);
                CheckDocument(path, *given.document, context.findings);
            } else {
                std::string name = given.text ? NameOfChecked(*given.text, path, own) : std::string();
                Add(path, std::move(name), own, context.findings);
            }
        }
    }

    void Print(std::ostream& out) const override {
        if (rules_) out << RulesPage();
        for (const CheckedCard& card : cards_) {
            out << Printable(card.file) << ": ";
            if (!card.name.empty()) out << Printable(card.name) << ": ";
            out << Verdict(card) << '\n';
        }
    }

    nlohmann::ordered_json Json() const override {
        nlohmann::ordered_json json = {{"cards", nlohmann::ordered_json::array()}};
        for (const CheckedCard& card : cards_) {
            json["cards"].push_back({{"file", card.file},
                                     {"name", card.name},
                                     {"errors", card.errors},
                                     {"warnings", card.warnings}});
        }
        return json;
    }

private:
    void Add(const std::string& path, std::string name, const Findings& own, Findings& findings) {
        CheckedCard card{.file = path, .name = std::move(name)};
        for (const Finding& finding : own.All()) {
            if (finding.kind == FindingKind::NOTE) continue;
            ++(finding.kind == FindingKind::WARNING ? card.warnings : card.errors);
        }
        cards_.push_back(std::move(card));
        findings.Add(own);
    }

    void CheckDocument(const std::string& path, DocumentToRead& document, Findings& findings) {
        for (const DocumentMaterial& material : MaterialsOf(document.Document())) {
            Findings own;
            const Material read = ReadDocumentMaterial(material, document.Name(), own);
            own.Add(CheckMaterial(read));
            Add(path, material.name, Named(own, material.name), findings);
        }
        for (const DocumentLayup& layup : LayupsOf(document.Document())) {
            Findings own;
            if (const auto card = LayupCardOf(document, layup, own)) own.Add(CheckLayup(*card));
            own = Named(own, layup.name);
            ReportRemovedMaterials(layup, document.Name(), own);
            Add(path, layup.name, own, findings);
        }
    }

    /// Reads a card, whichever it is, and checks it: a material or layup, or several materials.
    std::string NameOfChecked(const std::string& text, const std::string& path, Findings& findings) const {
        const std::string file = ShownPath(path);
        const auto materials = ReadCardText(text, file, findings, how_);
        // A layup card reads as a material card of unknown blocks.
        const bool doubtful = materials.empty() || !materials.front().kept.empty();
        if (doubtful && FormOfText(text) == FileForm::LAYUP_CARD) {
            findings.RemoveAbout(file);
            const auto layup = LayupCardReader(findings).ReadText(text, file);
            if (layup) findings.Add(CheckLayup(*layup));
            return layup ? layup->name : "";
        }
        if (doubtful && NameRightCommand(path, FileForm::MATERIAL_CARD, findings)) return {};
        for (const Material& material : materials) findings.Add(CheckMaterial(material));
        return WordList(materials, [](const Material& material) { return material.name; });
    }

    std::vector<std::string> paths_;
    CardReading how_;
    bool rules_ = false;  // print them, check nothing
    std::vector<CheckedCard> cards_;
};

}  // namespace

CommandKind CheckCommand() {
    return {
        .name = "check",
        .brief = "hold cards and documents against the rules of physics and of plausibility",
        .text =
            "Hold material cards, layup cards and documents against every rule that there is, and print\n"
            "a line for each card, and for each material and layup of a document. Errors are what cannot\n"
            "be, warnings what is hardly meant. Nothing is written.\n"
            "--rules prints the rules, each with its bound and where that comes from.",
        .make = &MakeCommand<Check>};
}

}  // namespace zelmat
