#include "zelmat/commands/reports/ShowReport.h"

#include <algorithm>
#include <cmath>

#include "zelmat/cards/FitChoice.h"
#include "zelmat/commands/reports/KeptReport.h"
#include "zelmat/materials/DerivedValues.h"
#include "zelmat/materials/InUnits.h"
#include "zelmat/quantities/NumberColumn.h"
#include "zelmat/quantities/NumberText.h"
#include "zelmat/text/CountText.h"
#include "zelmat/text/Printable.h"
#include "zelmat/text/TablePrinter.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

std::string ValueText(const ShownValue& shown) {
    struct ToText {
        const std::string& unit;
        std::string operator()(bool flag) const { return flag ? "yes" : "no"; }
        std::string operator()(int count) const { return std::to_string(count); }
        std::string operator()(double number) const { return WithUnit(number, unit); }
        std::string operator()(const std::string& text) const { return Printable(text); }
    };
    return std::visit(ToText{shown.unit}, shown.value);
}

/// The values beside the tables: those that are stored, or the notes that only the card has.
void PrintValues(std::ostream& out, const BlockKind& kind, const Values& values, bool stored,
                 const UnitChoice& units) {
    for (const Setting& setting : kind.settings) {
        const Value* value = setting.stored == stored ? values.Find(setting.name) : nullptr;
        if (!value) continue;
        out << "  " << setting.title << (stored ? ": " : ", on the card: ")
            << ValueText(InUnits(setting, *value, units)) << '\n';
    }
}

/// What the stored data mean: "initial shear modulus mu0 at 293.15 K: 390000 Pa".
void PrintDerived(std::ostream& out, const Block& block, const UnitChoice& units) {
    for (const DerivedValue& derived : DerivedValues(block)) {
        out << "  " << derived.title;
        if (const auto temperature = derived.TemperatureIn(units)) out << " at " << ValueText(*temperature);
        out << ": " << ValueText(derived.In(units)) << '\n';
    }
}

std::string Header(const ColumnKind& column) {
    const std::string title = column.title.empty() ? "(no name)" : column.title;
    return column.unit.empty() ? title : title + " [" + column.unit + "]";
}

void PrintTable(std::ostream& out, const Table& table) {
    std::vector<std::string> headers;
    for (const Column& column : table.columns) headers.push_back(Header(column.kind));
    std::vector<std::vector<std::string>> texts;
    for (const Column& column : table.columns) texts.push_back(NumberColumn(column.values));
    TablePrinter printer(headers);
    for (std::size_t row = 0; row < table.Rows(); ++row) {
        std::vector<std::string> cells;
        for (std::size_t column = 0; column < texts.size(); ++column) {
            const bool missing = std::isnan(table.columns[column].values[row]);
            cells.push_back(missing ? "-" : texts[column][row]);
        }
        printer.AddRow(cells);
    }
    printer.Print(out);
}

void PrintSource(std::ostream& out, const StoredBlock& stored, const Table& table) {
    const Table* given = stored.given ? stored.given->Find(table.kind) : nullptr;
    if (given && !given->source.empty()) out << "  source: " << Printable(given->source) << '\n';
}

const char* FlagWords(const Table& table) {
    if (!table.kind->flagged) return "";
    return table.temperatureDependent ? ", temperature dependent" : ", not temperature dependent";
}

void PrintBlock(std::ostream& out, const StoredBlock& stored, const UnitChoice& units) {
    const Block& block = stored.block;
    const bool ownTable = block.kind->FindTable("") != nullptr;
    out << '\n' << block.kind->title;
    if (ownTable && !block.tables.empty()) out << FlagWords(block.tables.front());
    out << '\n';
    PrintValues(out, *block.kind, block.values, true, units);
    for (const Table& table : block.tables) {
        if (!ownTable) out << "  " << table.kind->title << FlagWords(table) << '\n';
        PrintTable(out, InUnits(table, units));
        PrintSource(out, stored, table);
    }
    PrintDerived(out, block, units);
    if (stored.given) PrintValues(out, *block.kind, stored.given->values, false, units);
}

/// Which of several fits the material holds. Every fit that is shown tells its name itself.
void PrintFits(std::ostream& out, const StoredMaterial& material) {
    std::vector<const Block*> shown;
    for (const StoredBlock& stored : material.blocks) {
        if (stored.given && stored.given->kind->alternatives) shown.push_back(stored.given);
    }
    const auto& fits = material.given->fits;
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
    for (const Block& fit : fits) {
        if (&fit != shown.front()) out << "  not stored: " << Printable(FitName(fit)) << '\n';
    }
    out << "  choose with --model and --variant, or show each with --all-models\n";
}

std::string InformationText(const Block& block) {
    const std::string tables = WordList(block.tables, [](const Table& table) {
        return table.kind->name + " " + CountText(table.Rows(), "row");
    });
    return tables.empty() ? block.kind->name : block.kind->name + " (" + tables + ")";
}

void PrintNote(std::ostream& out, const char* note, const std::string& words) {
    if (!words.empty()) out << note << ": " << words << '\n';
}

/// Where the material comes from, and what is said of it as a whole.
void PrintHead(std::ostream& out, const Material& given) {
    out << Printable(given.name) << '\n';
    if (!given.description.empty()) out << Printable(given.description) << '\n';
    if (!given.materialClass.empty()) out << "class: " << Printable(given.materialClass) << '\n';
    for (const std::string& source : given.sources) out << "source: " << Printable(source) << '\n';
    for (const std::string& note : given.notes) out << "note: " << Printable(note) << '\n';
    if (given.illustrative) out << "illustrative: the values are made up\n";
}

}  // namespace

void PrintMaterial(std::ostream& out, const StoredMaterial& material, const UnitChoice& units) {
    const Material& given = *material.given;
    PrintHead(out, given);
    out << '\n';
    PrintNote(out, "switched on", WordList(material.Names(true)));
    PrintNote(out, "switched off", WordList(material.Names(false)));
    if (material.heatGeneration.value_or(false)) out << "the material generates heat\n";
    for (const StoredBlock* stored : material.SwitchedOn()) PrintBlock(out, *stored, units);
    PrintFits(out, material);
    if (!given.information.empty()) out << '\n';
    PrintNote(out, "for information only, used by no behavior", WordList(given.information, InformationText));
    PrintKept(out, given);
}

}  // namespace zelmat
