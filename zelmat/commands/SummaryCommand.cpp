#include <CLI/CLI.hpp>
#include <deque>

#include "zelmat/cards/FitChoice.h"
#include "zelmat/cards/MaterialCardReader.h"
#include "zelmat/commands/Command.h"
#include "zelmat/commands/JsonReport.h"
#include "zelmat/commands/WrongForm.h"
#include "zelmat/text/Printable.h"
#include "zelmat/text/TablePrinter.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

/// "elastic 12": the rows of its tables, added up per table: "gasket 8+12+12".
std::string BlockText(const StoredBlock* block) {
    std::string text = block->block->name;
    const char* separator = " ";
    for (const StoredTable& table : block->tables) {
        text += separator + std::to_string(table.rows.size());
        separator = "+";
    }
    return text;
}

std::string Notes(const StoredMaterial& material) {
    std::vector<std::string> notes;
    const MaterialCard& card = *material.card;
    if (card.illustrative) notes.push_back("illustrative");
    if (card.fits.size() > 1) {
        notes.push_back("stored " + Printable(FitName(card.fits.front())) + " of " +
                        std::to_string(card.fits.size()) + " fits");
    }
    for (const CardData& data : card.information) {
        notes.push_back(data.block->name + " for information");
    }
    return WordList(notes);
}

void PrintTable(std::ostream& out, const std::deque<StoredMaterial>& materials) {
    std::size_t features = 0;
    TablePrinter printer({"material", "features", "switched on, with rows per table", "notes"});
    for (const std::size_t words : {0u, 2u, 3u}) printer.SetLeft(words);
    for (const StoredMaterial& material : materials) {
        features += material.features;
        printer.AddRow({Printable(material.card->name), std::to_string(material.features),
                        WordList(material.SwitchedOn(), BlockText), Notes(material)});
    }
    printer.Print(out);
    out << "\nmaterials: " << materials.size() << ", features: " << features << '\n';
}

/// Puts the materials of several cards into one document in memory and prints one line for each: what is
/// switched on with how many rows, how many features it made, and notes. A card with a mistake is left out;
/// its findings say why. Keeps nothing on disk.
class Summary final : public Command {
public:
    void Declare(CLI::App& line) override {
        line.add_option("CARD.json", paths_, "Material cards, JSON files")->required();
    }

    void Work(CommandContext& context) override {
        MaterialHost host(context.options.catalogs);
        for (const std::string& path : paths_) {
            Findings own;
            Add(host, path, own);
            for (const Finding& finding : own.All()) context.findings.Add(finding);
        }
    }

    void Print(std::ostream& out) const override { PrintTable(out, materials_); }

    nlohmann::ordered_json Json() const override {
        nlohmann::ordered_json json = {{"materials", nlohmann::ordered_json::array()}};
        for (const StoredMaterial& material : materials_) json["materials"].push_back(ToJson(material));
        return json;
    }

private:
    void Add(MaterialHost& host, const std::string& path, Findings& findings) {
        auto card = MaterialCardReader(findings).Read(path);
        if (!card) {
            NameRightCommand(path, FileForm::MATERIAL_CARD, findings);
            return;
        }
        cards_.push_back(std::move(*card));
        const CardData* fit = ChooseFit(cards_.back(), {}, findings);
        auto material = StoreMaterial(host, cards_.back(),
                                      fit ? std::vector{fit} : std::vector<const CardData*>(), findings);
        if (!findings.HasErrors()) materials_.push_back(std::move(material));
    }

    std::vector<std::string> paths_;
    std::deque<MaterialCard> cards_;  // does not move its elements, which the materials refer to
    std::deque<StoredMaterial> materials_;
};

}  // namespace

CommandKind SummaryCommand() {
    return {.name = "summary",
            .brief = "put the materials of several cards into one document, a line for each",
            .text =
                "Put the materials of several cards into one document in memory and print a line for each:\n"
                "which behaviors are switched on with how many rows, and how many features the material\n"
                "made.",
            .make = &MakeCommand<Summary>};
}

}  // namespace zelmat
