#include "zelmat/commands/frame/CsvReport.h"

#include <cmath>
#include <utility>

#include "zelmat/materials/InUnits.h"
#include "zelmat/quantities/NumberText.h"
#include "zelmat/text/Printable.h"

namespace zelmat {

namespace {

std::string Header(const ColumnKind& column) {
    return column.unit.empty() ? column.name : column.name + " [" + column.unit + "]";
}

void PrintTable(std::ostream& out, const Table& table) {
    const char* separator = "";
    for (const Column& column : table.columns) out << std::exchange(separator, ",") << Header(column.kind);
    out << '\n';
    for (std::size_t row = 0; row < table.Rows(); ++row) {
        separator = "";
        for (const Column& column : table.columns) {
            const double number = column.values[row];
            out << std::exchange(separator, ",") << (std::isnan(number) ? "" : NumberText(number));
        }
        out << '\n';
    }
}

}  // namespace

void PrintTablesAsCsv(std::ostream& out, const StoredMaterial& material, const UnitChoice& units) {
    const char* gap = "";
    for (const StoredBlock* stored : material.SwitchedOn()) {
        for (const Table& table : stored->block.tables) {
            out << std::exchange(gap, "\n") << "# " << Printable(material.given->name) << ": "
                << stored->block.kind->TableName(*table.kind) << '\n';
            PrintTable(out, InUnits(table, units));
        }
    }
}

}  // namespace zelmat
