#include "zelmat/commands/SummaryCommand.h"

#include <deque>

#include "zelmat/cards/FitChoice.h"
#include "zelmat/cards/MaterialCardReader.h"
#include "zelmat/commands/JsonReport.h"
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
        notes.push_back("stored " + FitName(card.fits.front()) + " of " + std::to_string(card.fits.size()) +
                        " fits");
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
        printer.AddRow({material.card->name, std::to_string(material.features),
                        WordList(material.SwitchedOn(), BlockText), Notes(material)});
    }
    printer.Print(out);
    out << "\nmaterials: " << materials.size() << ", features: " << features << '\n';
}

void PrintJson(std::ostream& out, const std::deque<StoredMaterial>& materials, const Findings& findings) {
    nlohmann::ordered_json json = {{"materials", nlohmann::ordered_json::array()}};
    for (const StoredMaterial& material : materials) json["materials"].push_back(ToJson(material));
    json["findings"] = ToJson(findings);
    out << json.dump(2) << '\n';
}

}  // namespace

ExitCode SummaryCommand::Run(std::ostream& out, std::ostream& err) const {
    Findings findings;
    MaterialHost host(catalogs);
    std::deque<MaterialCard> read;  // does not move its elements, which the materials refer to
    std::deque<StoredMaterial> materials;
    for (const std::string& path : cards) {
        Findings own;
        auto card = MaterialCardReader(own).Read(path);
        if (card) {
            read.push_back(std::move(*card));
            const CardData* fit = ChooseFit(read.back(), {}, own);
            auto material = StoreMaterial(host, read.back(),
                                          fit ? std::vector{fit} : std::vector<const CardData*>(), own);
            if (!own.HasErrors()) materials.push_back(std::move(material));
        }
        for (const Finding& finding : own.All()) findings.Add(finding);
    }

    if (json) {
        PrintJson(out, materials, findings);
        return findings.Exit();
    }
    PrintTable(out, materials);
    for (const Finding& finding : findings.All()) err << FindingLine(finding) << '\n';
    return findings.Exit();
}

}  // namespace zelmat
