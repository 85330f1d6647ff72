#include <CLI/CLI.hpp>
#include <algorithm>

#include "zelmat/cards/ReadCard.h"
#include "zelmat/checks/Checks.h"
#include "zelmat/checks/RulesPage.h"
#include "zelmat/commands/CardInput.h"
#include "zelmat/commands/Command.h"
#include "zelmat/commands/WrongForm.h"
#include "zelmat/files/ReadText.h"
#include "zelmat/layups/LayupCardReader.h"
#include "zelmat/text/CountText.h"
#include "zelmat/text/Printable.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

/// What one card came to.
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

/// Reads cards and holds them against every rule. Writes nothing anywhere.
class Check final : public Command {
public:
    void Declare(CLI::App& line) override {
        auto* rules = line.add_flag("--rules", rules_, "Print every rule instead, as Markdown");
        line.add_option("CARD", paths_, "Material cards or layup cards; - is standard input")
            ->excludes(rules);
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
            CheckedCard card{.file = path, .name = NameOfChecked(path, own)};
            for (const Finding& finding : own.All()) {
                if (finding.kind == FindingKind::NOTE) continue;
                ++(finding.kind == FindingKind::WARNING ? card.warnings : card.errors);
            }
            cards_.push_back(std::move(card));
            context.findings.Add(own);
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
    /// Reads the card, whichever it is, and checks it: a material or layup, or several materials.
    std::string NameOfChecked(const std::string& path, Findings& findings) const {
        const auto text = ReadText(path, findings);
        if (!text) return {};
        const std::string file = ShownPath(path);
        const auto materials = ReadCardText(*text, file, findings, how_);
        // A layup card reads as a material card of unknown blocks.
        const bool doubtful = materials.empty() || !materials.front().kept.empty();
        if (doubtful && FormOfText(*text) == FileForm::LAYUP_CARD) {
            findings.RemoveAbout(file);
            const auto layup = LayupCardReader(findings).ReadText(*text, file);
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
    return {.name = "check",
            .brief = "hold cards against the rules of physics and of plausibility",
            .text =
                "Hold material cards and layup cards against every rule that there is, and print a line for\n"
                "each card. Errors are what cannot be, warnings what is hardly meant. Nothing is written.\n"
                "--rules prints the rules, each with its bound and where that comes from.",
            .make = &MakeCommand<Check>};
}

}  // namespace zelmat
