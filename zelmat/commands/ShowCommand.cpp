#include <CLI/CLI.hpp>
#include <optional>

#include "zelmat/cards/FitChoice.h"
#include "zelmat/commands/CallTrace.h"
#include "zelmat/commands/CardInput.h"
#include "zelmat/commands/Command.h"
#include "zelmat/commands/CsvReport.h"
#include "zelmat/commands/JsonReport.h"
#include "zelmat/commands/ShowReport.h"
#include "zelmat/commands/WriteGate.h"

namespace zelmat {

namespace {

/// Reads a card, writes it into a document in memory, reads it back from there and prints what the document
/// holds. Keeps nothing on disk.
class Show final : public Command {
public:
    void Declare(CLI::App& line) override {
        line.add_option("CARD.json", path_, "Material card, a JSON file")->required();
        auto* model = line.add_option("--model", fit_.model, "Hyperelastic fit of this model: OGDEN, ...");
        auto* variant =
            line.add_option("--variant", fit_.variant, "Hyperelastic fit with this text in its variant");
        line.add_flag("--all-models", allFits_, "Store and show each hyperelastic fit in turn")
            ->excludes(model)
            ->excludes(variant);
        DeclareCardReading(line, how_);
        gate_.Declare(line);
        line.add_flag("--trace", trace_, "Print each call of a material interface on standard error");
    }

    void Work(CommandContext& context) override {
        Findings& findings = context.findings;
        units_ = context.units;
        csv_ = context.options.csv;
        std::optional<CallTrace> calls;
        if (trace_) calls.emplace(context.notes);

        card_ = ReadGivenCard(path_, findings, how_);
        if (!card_) return;
        const auto fits = FitsToShow(findings);
        material_ = StoredMaterial{.given = &*card_};
        if (findings.HasErrors() || !gate_.Passes(*card_, findings)) return;
        Findings answers;  // apart from what the checks said
        MaterialHost host(context.options.catalogs);
        material_ = StoreMaterial(host, *card_, fits, answers);
        stored_ = !answers.HasErrors();
        findings.Add(answers);
    }

    void Print(std::ostream& out) const override {
        if (!stored_) return;
        if (csv_) {
            PrintTablesAsCsv(out, *material_, units_);
        } else {
            PrintMaterial(out, *material_, units_);
        }
    }

    nlohmann::ordered_json Json() const override {
        nlohmann::ordered_json json = {{"material", nullptr}};
        if (material_) json["material"] = ToJson(*material_, units_);
        return json;
    }

private:
    std::vector<const Block*> FitsToShow(Findings& findings) const {
        std::vector<const Block*> fits;
        if (allFits_) {
            for (const Block& fit : card_->fits) fits.push_back(&fit);
        } else if (const Block* fit = ChooseFit(*card_, fit_, findings)) {
            fits.push_back(fit);
        }
        return fits;
    }

    std::string path_;
    CardReading how_;
    FitChoice fit_;         // of several hyperelastic fits
    bool allFits_ = false;  // show each in turn
    WriteGate gate_;
    bool trace_ = false;
    UnitChoice units_ = UnitChoice::Si();
    bool csv_ = false;
    std::optional<Material> card_;
    std::optional<StoredMaterial> material_;
    bool stored_ = false;
};

}  // namespace

CommandKind ShowCommand() {
    return {
        .name = "show",
        .brief = "print the properties on a material card as a document holds them",
        .text =
            "Print the properties on a material card as a document holds them.\n"
            "The card is checked, written into a document in memory, read back from there and\n"
            "printed behavior by behavior, each number with its unit. Nothing is kept on disk. A material\n"
            "holds one hyperelastic fit: the one that is asked for, else the card's first. A card on\n"
            "which the checks find errors is not shown without --keep-going.",
        .units = true,
        .csv = true,
        .make = &MakeCommand<Show>};
}

}  // namespace zelmat
