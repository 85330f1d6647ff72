#include <deque>

#include "zelmat/cards/FitChoice.h"
#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/frame/Command.h"
#include "zelmat/commands/frame/JsonReport.h"
#include "zelmat/commands/frame/WriteGate.h"
#include "zelmat/commands/inputs/CardInput.h"
#include "zelmat/commands/inputs/GivenMaterials.h"
#include "zelmat/text/Printable.h"
#include "zelmat/text/TablePrinter.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

/// "elastic 12": the rows of its tables, added up per table: "gasket 8+12+12".
std::string BlockText(const StoredBlock* stored) {
    std::string text = stored->block.kind->name;
    const char* separator = " ";
    for (const Table& table : stored->block.tables) {
        text += separator + std::to_string(table.Rows());
        separator = "+";
    }
    return text;
}

std::string Notes(const StoredMaterial& material) {
    std::vector<std::string> notes;
    const Material& given = *material.given;
    if (given.illustrative) notes.push_back("illustrative");
    if (given.fits.size() > 1) {
        notes.push_back("stored " + Printable(FitName(given.fits.front())) + " of " +
                        std::to_string(given.fits.size()) + " fits");
    }
    for (const Block& block : given.information) notes.push_back(block.kind->name + " for information");
    return WordList(notes);
}

void PrintTable(std::ostream& out, const std::deque<StoredMaterial>& materials) {
    std::size_t features = 0;
    TablePrinter printer({"material", "features", "switched on, with rows per table", "notes"});
    for (const std::size_t words : {0u, 2u, 3u}) printer.SetLeft(words);
    for (const StoredMaterial& material : materials) {
        features += material.features;
        printer.AddRow({Printable(material.given->name), std::to_string(material.features),
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
    void Declare(Arguments& line) override {
        line.Add("CARD", paths_, "Material cards of any form, or documents; - is standard input").Required();
        DeclareCardReading(line, how_);
        gate_.Declare(line);
    }

    void Work(CommandContext& context) override {
        units_ = context.units;
        MaterialHost host(context.options.catalogs);
        for (const std::string& path : paths_) Add(host, path, context);
    }

    void Print(std::ostream& out) const override { PrintTable(out, materials_); }

    nlohmann::ordered_json Json() const override {
        nlohmann::ordered_json json = {{"materials", nlohmann::ordered_json::array()}};
        for (const StoredMaterial& material : materials_)
            json["materials"].push_back(ToJson(material, units_));
        return json;
    }

private:
    void Add(MaterialHost& host, const std::string& path, CommandContext& context) {
        Findings& findings = context.findings;
        for (Material& card : ReadGivenMaterials(path, context.options, findings, how_)) {
            Findings own;  // apart from what the checks said
            if (!gate_.Passes(card, findings)) continue;
            cards_.push_back(std::move(card));
            const Block* fit = ChooseFit(cards_.back(), {}, own);
            auto material =
                StoreMaterial(host, cards_.back(), fit ? std::vector{fit} : std::vector<const Block*>(), own);
            if (!own.HasErrors()) materials_.push_back(std::move(material));
            findings.Add(own);
        }
    }

    std::vector<std::string> paths_;
    CardReading how_;
    UnitChoice units_ = UnitChoice::Si();
    WriteGate gate_;
    std::deque<Material> cards_;  // does not move its elements, which the materials refer to
    std::deque<StoredMaterial> materials_;
};

}  // namespace

CommandKind SummaryCommand() {
    return {.name = "summary",
            .brief = "put the materials of several cards into one document, a line for each",
            .text =
                "Put the materials of several cards into one document in memory and print a line for each:\n"
                "which behaviors are switched on with how many rows, and how many features the material\n"
                "made. A card on which the checks find errors is left out without --keep-going.",
            .units = true,
            .make = &MakeCommand<Summary>};
}

}  // namespace zelmat
