#include "zelmat/commands/ShowReport.h"

#include <algorithm>

#include "zelmat/cards/FitChoice.h"
#include "zelmat/text/NumberText.h"
#include "zelmat/text/Printable.h"
#include "zelmat/text/TablePrinter.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

std::string ValueText(const CardSetting& setting, const CardValue& value) {
    struct ToText {
        const std::string& unit;
        std::string operator()(bool flag) const { return flag ? "yes" : "no"; }
        std::string operator()(int count) const { return std::to_string(count); }
        std::string operator()(double number) const { return WithUnit(number, unit); }
        std::string operator()(const std::string& text) const { return Printable(text); }
    };
    return std::visit(ToText{setting.unit}, value);
}

/// The values beside the tables: those that are stored, or the notes that only the card has.
void PrintValues(std::ostream& out, const CardBlock& block, const CardValues& values, bool stored) {
    for (const CardSetting& setting : block.settings) {
        const CardValue* value = setting.stored == stored ? values.Find(setting.name) : nullptr;
        if (!value) continue;
        out << "  " << setting.title << (stored ? ": " : ", on the card: ") << ValueText(setting, *value)
            << '\n';
    }
}

void PrintTable(std::ostream& out, const StoredTable& table) {
    std::vector<std::string> headers;
    for (const CardColumn& column : table.columns) {
        headers.push_back(column.unit.empty() ? column.title : column.title + " [" + column.unit + "]");
    }
    TablePrinter printer(headers);
    for (const auto& row : table.rows) {
        std::vector<std::string> cells;
        for (const double value : row) cells.push_back(NumberText(value));
        printer.AddRow(std::move(cells));
    }
    printer.Print(out);
}

void PrintSource(std::ostream& out, const StoredBlock& block, const StoredTable& table) {
    const CardTable* given = block.given ? block.given->Table(table.kind) : nullptr;
    if (given && !given->source.empty()) out << "  source: " << Printable(given->source) << '\n';
}

const char* FlagWords(const StoredTable& table) {
    if (!table.kind->flagged) return "";
    return table.temperatureDependent ? ", temperature dependent" : ", not temperature dependent";
}

void PrintBlock(std::ostream& out, const StoredBlock& block) {
    const bool ownTable = block.block->FindTable("") != nullptr;
    out << '\n' << block.block->title;
    if (ownTable && !block.tables.empty()) out << FlagWords(block.tables.front());
    out << '\n';
    PrintValues(out, *block.block, block.values, true);
    for (const StoredTable& table : block.tables) {
        if (!ownTable) out << "  " << table.kind->title << FlagWords(table) << '\n';
        PrintTable(out, table);
        PrintSource(out, block, table);
    }
    if (block.given) PrintValues(out, *block.block, block.given->values, false);
}

/// Which of several fits the material holds. Every fit that is shown tells its name itself.
void PrintFits(std::ostream& out, const StoredMaterial& material) {
    std::vector<const CardData*> shown;
    for (const StoredBlock& block : material.blocks) {
        if (block.given && block.block->alternatives) shown.push_back(block.given);
    }
    const auto& fits = material.card->fits;
    if (fits.size() < 2 || shown.empty()) return;
    if (shown.size() > 1) {
        out << '\n'
            << "hyperelastic fits on the card: " << fits.size()
            << ", each stored and read back in turn; a material holds one\n";
        return;
    }
    out << '\n'
        << "hyperelastic fits on the card: " << fits.size()
        << ", stored: " << Printable(FitName(*shown.front())) << '\n';
    for (const CardData& fit : fits) {
        if (&fit != shown.front()) out << "  not stored: " << Printable(FitName(fit)) << '\n';
    }
    out << "  choose with --model and --variant, or show each with --all-models\n";
}

std::string InformationText(const CardData& data) {
    const std::string tables = WordList(data.tables, [](const CardTable& table) {
        return table.kind->name + " " + CountText(table.rows.size(), "row");
    });
    return tables.empty() ? data.block->name : data.block->name + " (" + tables + ")";
}

void PrintNote(std::ostream& out, const char* note, const std::string& words) {
    if (!words.empty()) out << note << ": " << words << '\n';
}

}  // namespace

void PrintMaterial(std::ostream& out, const StoredMaterial& material) {
    const MaterialCard& card = *material.card;
    out << Printable(card.name) << '\n';
    if (!card.description.empty()) out << Printable(card.description) << '\n';
    for (const std::string& source : card.sources) out << "source: " << Printable(source) << '\n';
    if (card.illustrative) out << "illustrative: the values are made up\n";
    out << '\n';
    PrintNote(out, "switched on", WordList(material.Names(true)));
    PrintNote(out, "switched off", WordList(material.Names(false)));
    for (const StoredBlock* block : material.SwitchedOn()) PrintBlock(out, *block);
    PrintFits(out, material);
    if (!card.information.empty()) out << '\n';
    PrintNote(out, "for information only, used by no behavior", WordList(card.information, InformationText));
}

}  // namespace zelmat
