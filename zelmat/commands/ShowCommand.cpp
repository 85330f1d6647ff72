#include <deque>
#include <optional>
#include <utility>

#include "zelmat/cards/FitChoice.h"
#include "zelmat/commands/CallTrace.h"
#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/frame/Command.h"
#include "zelmat/commands/frame/CsvReport.h"
#include "zelmat/commands/frame/JsonReport.h"
#include "zelmat/commands/frame/WriteGate.h"
#include "zelmat/commands/inputs/GivenMaterials.h"
#include "zelmat/commands/reports/ChangeReport.h"
#include "zelmat/commands/reports/ShowReport.h"
#include "zelmat/materials/MaterialHost.h"

namespace zelmat {

namespace {

/// A material as it was given, and what a document holds of it.
struct ShownMaterial {
    Material given;
    StoredMaterial stored = {};
};

/// Prints what a document holds of a material. A card is written into a document in memory and read back
/// from there. Nothing is kept on disk.
class Show final : public Command {
public:
    void Declare(Arguments& line) override {
        what_.Declare(line);
        const Argument model = line.Add("--model", fit_.model, "Hyperelastic fit of this model: OGDEN, ...");
        const Argument variant =
            line.Add("--variant", fit_.variant, "Hyperelastic fit with this text in its variant");
        line.AddFlag("--all-models", allFits_, "Store and show each hyperelastic fit of a card in turn")
            .Excludes(model)
            .Excludes(variant);
        gate_.Declare(line);
        line.AddFlag("--trace", trace_, "Print each call of a material interface on standard error");
    }

    void Work(CommandContext& context) override {
        units_ = context.units;
        csv_ = context.options.csv;
        std::optional<CallTrace> calls;
        if (trace_) calls.emplace(context.notes);
        GivenFile file = OpenGiven(what_.Path(), context.options, context.findings);
        if (file.document) {
            ShowDocument(*file.document, context.findings);
        } else if (file.text) {
            ShowCards(std::move(*file.text), context);
        }
    }

    void Print(std::ostream& out) const override {
        if (!stored_) return;
        const char* gap = "";
        for (const ShownMaterial& material : materials_) {
            out << std::exchange(gap, "\n");
            if (csv_) {
                PrintTablesAsCsv(out, material.stored, units_);
            } else {
                PrintMaterial(out, material.stored, units_);
            }
        }
    }

    nlohmann::ordered_json Json() const override {
        nlohmann::ordered_json json = {{"material", nullptr}};
        if (materials_.size() == 1) json["material"] = ToJson(materials_.front().stored, units_);
        if (materials_.size() < 2) return json;
        for (const ShownMaterial& material : materials_) {
            json["materials"].push_back(ToJson(material.stored, units_));
        }
        return json;
    }

private:
    void ShowCards(std::string text, CommandContext& context) {
        Findings& findings = context.findings;
        auto cards = CardsOfText(std::move(text), what_.Path(), findings, what_.How());
        if (findings.HasErrors()) return;
        if (!what_.Wanted().empty()) cards = what_.Chosen(std::move(cards), findings);
        MaterialHost host(context.options.catalogs);
        stored_ = !cards.empty();
        for (Material& card : cards) ShowCard(host, std::move(card), findings);
    }

    void ShowCard(MaterialHost& host, Material card, Findings& findings) {
        ShownMaterial& shown = materials_.emplace_back(ShownMaterial{std::move(card)});
        shown.stored.given = &shown.given;
        Findings own;
        const auto fits = FitsToShow(shown.given, own);
        const bool passes = !own.HasErrors() && gate_.Passes(shown.given, own);
        Findings answers;  // apart from what the checks said
        if (passes) shown.stored = StoreMaterial(host, shown.given, fits, answers);
        if (!passes || answers.HasErrors()) stored_ = false;
        findings.Add(own);
        findings.Add(answers);
    }

    void ShowDocument(DocumentToRead& document, Findings& findings) {
        if (fit_.IsMade() || allFits_) {
            findings.Add({FindingKind::USAGE,
                          {document.Name(), 0},
                          "only-for-cards",
                          "a document holds one hyperelastic fit, which is the one that is shown",
                          {}});
            return;
        }
        auto materials = MaterialsOf(document.Document());
        if (!what_.Wanted().empty()) {
            const auto chosen =
                ChosenMaterial(document.Document(), what_.Wanted(), document.Name(), findings);
            materials = chosen ? std::vector{*chosen} : std::vector<DocumentMaterial>();
        }
        Findings own;
        for (const DocumentMaterial& material : materials) ShowHeld(document, material, own);
        findings.Add(own);
        stored_ = !own.HasErrors();
    }

    void ShowHeld(DocumentToRead& document, const DocumentMaterial& material, Findings& findings) {
        Material held = ReadHeldMaterial(material, document.Name(), findings);
        ShownMaterial& shown = materials_.emplace_back(ShownMaterial{InShapeOfACard(material, held)});
        shown.stored = HeldMaterial(shown.given, std::move(held), FeaturesOf(material));
    }

    std::vector<const Block*> FitsToShow(const Material& card, Findings& findings) const {
        std::vector<const Block*> fits;
        if (allFits_) {
            for (const Block& fit : card.fits) fits.push_back(&fit);
        } else if (const Block* fit = ChooseFit(card, fit_, findings)) {
            fits.push_back(fit);
        }
        return fits;
    }

    GivenMaterials what_;
    FitChoice fit_;         // of several hyperelastic fits
    bool allFits_ = false;  // show each in turn
    WriteGate gate_;
    bool trace_ = false;
    UnitChoice units_ = UnitChoice::Si();
    bool csv_ = false;
    std::deque<ShownMaterial> materials_;  // does not move its elements, which refer to themselves
    bool stored_ = false;
};

}  // namespace

CommandKind ShowCommand() {
    return {
        .name = "show",
        .brief = "print the properties of a material as a document holds them",
        .text =
            "Print the properties of a material as a document holds them, behavior by behavior, each number\n"
            "with its unit; of all materials where none is named. A card is checked, written into a\n"
            "document in memory and read back from there. Nothing is kept on disk. A material holds one "
            "hyperelastic fit: the one that is asked for, else the card's first. A card on\n"
            "which the checks find errors is not shown without --keep-going.",
        .units = true,
        .csv = true,
        .make = &MakeCommand<Show>};
}

}  // namespace zelmat
