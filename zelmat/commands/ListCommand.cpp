
#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/frame/Command.h"
#include "zelmat/commands/inputs/CardInput.h"
#include "zelmat/commands/inputs/GivenMaterials.h"
#include "zelmat/commands/reports/LayupReport.h"
#include "zelmat/layups/WholeLayup.h"
#include "zelmat/text/CountText.h"
#include "zelmat/text/TablePrinter.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

/// "elastic 12": the rows of its tables, added up per table: "gasket 8+12+12".
std::string BlockText(const Block* block) {
    std::string text = block->kind->name;
    const char* separator = " ";
    for (const Table& table : block->tables) {
        text += separator + std::to_string(table.Rows());
        separator = "+";
    }
    return text;
}

/// The behaviors' blocks; of several fits the one that is stored.
std::vector<const Block*> StoredBlocks(const Material& material) {
    std::vector<const Block*> blocks;
    for (const Block& block : material.blocks) blocks.push_back(&block);
    if (!material.fits.empty()) blocks.push_back(&material.fits.front());
    return blocks;
}

std::vector<std::string> OtherData(const Material& material) {
    std::vector<std::string> names;
    if (material.illustrative) names.emplace_back("illustrative");
    if (material.fits.size() > 1) names.push_back(CountText(material.fits.size(), "fit"));
    for (const Block& block : material.information) names.push_back(block.kind->name);
    return names;
}

/// One line for each material of a document, and one for each layup.
class List final : public Command {
public:
    void Declare(Arguments& line) override {
        line.Add("CARD|DOC", path_, "Document, or material card; - is standard input").Required();
        DeclareCardReading(line, how_);
    }

    void Work(CommandContext& context) override {
        Findings& findings = context.findings;
        GivenFile given = OpenGiven(path_, context.options, findings);
        if (given.document) {
            materials_ = given.document->Materials(findings);
            for (WholeLayup& layup : ReadWholeLayups(given.document->Document(), path_, findings)) {
                layups_.push_back(std::move(layup.stored));
            }
        } else if (given.text) {
            materials_ = CardsOfText(std::move(*given.text), path_, findings, how_);
        }
        read_ = !context.findings.HasErrors();
    }

    void Print(std::ostream& out) const override {
        if (!read_) return;
        TablePrinter printer({"#", "material", "class", "switched on, with rows per table", "further data"});
        for (const std::size_t words : {1u, 2u, 3u, 4u}) printer.SetLeft(words);
        for (std::size_t at = 0; at < materials_.size(); ++at) {
            const Material& material = materials_[at];
            printer.AddRow({std::to_string(at + 1), material.name, material.materialClass,
                            WordList(StoredBlocks(material), BlockText), WordList(OtherData(material))});
        }
        if (!materials_.empty()) {
            printer.Print(out);
            out << '\n';
        }
        out << "materials: " << materials_.size() << '\n';
        if (layups_.empty()) return;
        out << '\n';
        PrintLayupList(out, layups_);
    }

    nlohmann::ordered_json Json() const override {
        nlohmann::ordered_json json = {{"materials", nlohmann::ordered_json::array()},
                                       {"layups", nlohmann::ordered_json::array()}};
        for (std::size_t at = 0; at < materials_.size(); ++at) {
            const Material& material = materials_[at];
            nlohmann::ordered_json behaviors = nlohmann::ordered_json::array();
            for (const Block* block : StoredBlocks(material)) {
                nlohmann::ordered_json rows = nlohmann::ordered_json::object();
                for (const Table& table : block->tables) rows[table.kind->name] = table.Rows();
                behaviors.push_back({{"name", block->kind->name}, {"rows", std::move(rows)}});
            }
            json["materials"].push_back({{"number", at + 1},
                                         {"name", material.name},
                                         {"class", material.materialClass},
                                         {"switched_on", std::move(behaviors)},
                                         {"further_data", OtherData(material)}});
        }
        for (const StoredLayup& layup : layups_) {
            json["layups"].push_back({{"number", json["layups"].size() + 1},
                                      {"name", layup.name},
                                      {"layers", layup.layers.size()},
                                      {"notation", layup.Notation()}});
        }
        return json;
    }

private:
    std::string path_;
    CardReading how_;
    std::vector<Material> materials_;
    std::vector<StoredLayup> layups_;
    bool read_ = false;
};

}  // namespace

CommandKind ListCommand() {
    return {.name = "list",
            .brief = "list the materials and layups of a document, a line for each",
            .text =
                "List the materials of a document, a line for each: its number, name and class, which\n"
                "behaviors are switched on with how many rows, and what else the document keeps of it. Then\n"
                "its layups, with number, layers and stacking notation.",
            .make = &MakeCommand<List>};
}

}  // namespace zelmat
