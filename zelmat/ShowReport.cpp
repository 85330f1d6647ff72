#include "zelmat/ShowReport.h"

#include <nlohmann/json.hpp>

#include "zelmat/NumberText.h"
#include "zelmat/TablePrinter.h"
#include "zelmat/WordList.h"

namespace zelmat {

namespace {

using nlohmann::ordered_json;

/// A stored table's columns, by the store's own flag: the card's need not be the store's.
std::vector<CardColumn> ColumnsOf(const StoredTable& table) {
    return table.block->forms.front().ColumnsOf(table.temperatureDependent);
}

std::string Caption(const StoredTable& table) {
    std::string caption = table.block->title + ", ";
    caption += table.temperatureDependent ? "temperature dependent" : "not temperature dependent";
    if (table.referenceTemperature) caption += ", from " + NumberText(*table.referenceTemperature) + " K";
    return caption;
}

std::string SourceOf(const MaterialCard& card, const CardBlock* block) {
    for (const CardTable& table : card.tables) {
        if (table.block == block) return table.source;
    }
    return {};
}

void PrintTable(std::ostream& out, const MaterialCard& card, const StoredTable& table) {
    std::vector<std::string> headers;
    for (const CardColumn& column : ColumnsOf(table))
        headers.push_back(column.title + " [" + column.unit + "]");
    TablePrinter printer(headers);
    for (const auto& row : table.rows) {
        std::vector<std::string> cells;
        for (const double value : row) cells.push_back(NumberText(value));
        printer.AddRow(std::move(cells));
    }
    out << '\n' << Caption(table) << '\n';
    printer.Print(out);
    if (const std::string source = SourceOf(card, table.block); !source.empty()) {
        out << "  source: " << source << '\n';
    }
}

std::vector<std::string> NotShown(const MaterialCard& card, CardUse use) {
    std::vector<std::string> names;
    for (const CardBlock* block : card.notShown) {
        if (block->use == use) names.push_back(block->name);
    }
    return names;
}

void PrintNote(std::ostream& out, const char* note, const std::vector<std::string>& names) {
    if (!names.empty()) out << '\n' << note << ": " << WordList(names) << '\n';
}

ordered_json ToJson(const StoredTable& table) {
    ordered_json columns = ordered_json::array();
    for (const CardColumn& column : ColumnsOf(table)) {
        columns.push_back({{"name", column.name}, {"unit", column.unit}});
    }
    ordered_json json = {{"block", table.block->name},
                         {"temperature_dependent", table.temperatureDependent},
                         {"columns", std::move(columns)},
                         {"rows", table.rows}};
    if (table.referenceTemperature) json["reference_temperature"] = *table.referenceTemperature;
    return json;
}

ordered_json ToJson(const Finding& finding) {
    return {{"kind", KindWord(finding.kind)}, {"file", finding.place.file}, {"line", finding.place.line},
            {"code", finding.code},           {"text", finding.text},       {"details", finding.details}};
}

ordered_json ToJson(const MaterialCard& card, const std::vector<StoredTable>& tables) {
    ordered_json json = {{"name", card.name},
                         {"description", card.description},
                         {"source", card.sources},
                         {"illustrative", card.illustrative},
                         {"tables", ordered_json::array()},
                         {"not_shown_yet", NotShown(card, CardUse::NOT_SHOWN_YET)},
                         {"for_information", NotShown(card, CardUse::FOR_INFORMATION)}};
    for (const StoredTable& table : tables) json["tables"].push_back(ToJson(table));
    return json;
}

}  // namespace

void PrintMaterial(std::ostream& out, const MaterialCard& card, const std::vector<StoredTable>& tables) {
    out << card.name << '\n';
    if (!card.description.empty()) out << card.description << '\n';
    for (const std::string& source : card.sources) out << "source: " << source << '\n';
    if (card.illustrative) out << "illustrative: the values are made up\n";
    for (const StoredTable& table : tables) PrintTable(out, card, table);
    PrintNote(out, "not shown yet", NotShown(card, CardUse::NOT_SHOWN_YET));
    PrintNote(out, "for information only, used by no behavior", NotShown(card, CardUse::FOR_INFORMATION));
}

void PrintMaterialJson(std::ostream& out, const MaterialCard* card, const std::vector<StoredTable>& tables,
                       const Findings& findings) {
    ordered_json json = {{"material", nullptr}, {"findings", ordered_json::array()}};
    if (card) json["material"] = ToJson(*card, tables);
    for (const Finding& finding : findings.All()) json["findings"].push_back(ToJson(finding));
    out << json.dump(2) << '\n';
}

}  // namespace zelmat
