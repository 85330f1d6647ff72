#include <set>

#include "zelmat/checks/CheckRules.h"
#include "zelmat/checks/TableLooks.h"
#include "zelmat/quantities/NumberText.h"
#include "zelmat/text/CountText.h"

namespace zelmat {

namespace {

constexpr const char* kAbsolute = "definition of the kelvin: 0 K is absolute zero";
constexpr const char* kLookUp = "tables are interpolated from row to row: one value at each temperature";

void LookAtZero(const Material& material, CheckReport& report) {
    ForEachTable(material, [&](const Block& block, const Table& table) {
        const Column* temperature = table.Find("temperature");
        if (!temperature) return;
        for (std::size_t row = 0; row < table.Rows(); ++row) {
            if (IsNotPositive(temperature->values[row])) report.AddValue(block, table, *temperature, row);
        }
    });
    const Block* expansion = material.Find("thermal_expansion");
    const auto reference = expansion ? expansion->values.Get<double>("reference_temperature") : std::nullopt;
    if (reference && IsNotPositive(*reference)) {
        report.Add(expansion->origin.Line(),
                   "the reference temperature of thermal_expansion is " + WithUnit(*reference, "K"));
    }
}

/// Row by row in a plain table, curve by curve where a temperature has a curve. A curve that comes back is
/// another rule's.
void LookAtOrder(const Material& material, CheckReport& report) {
    ForEachTable(material, [&](const Block& block, const Table& table) {
        const Column* temperature = table.Find("temperature");
        if (!temperature) return;
        const bool curves = HoldsCurves(block, table);
        std::set<double> before;
        for (std::size_t row = 0; row < table.Rows(); ++row) {
            const double value = temperature->values[row];
            const bool known = curves && !before.insert(value).second;
            if (row == 0 || known) continue;
            const double previous = temperature->values[row - 1];
            if (value > previous) continue;
            report.AddValue(block, table, *temperature, row,
                            {"the row before has " + WithUnit(previous, "K")});
        }
    });
}

void LookAtTogether(const Material& material, CheckReport& report) {
    ForEachTable(material, [&](const Block& block, const Table& table) {
        const Column* temperature = table.Find("temperature");
        if (!temperature || !HoldsCurves(block, table)) return;
        std::set<double> before;
        for (const Curve& curve : CurvesOf(table, {"temperature"})) {
            if (before.insert(temperature->values[curve.first]).second) continue;
            report.AddValue(block, table, *temperature, curve.first,
                            {"the curve of this temperature has ended above"});
        }
    });
}

void LookAtSeveralRows(const Material& material, CheckReport& report) {
    for (const Block& block : material.blocks) {
        for (const Table& table : block.tables) {
            const bool plain = !table.kind->list && !HoldsCurves(block, table);
            if (!plain || table.temperatureDependent || table.Rows() < 2) continue;
            report.Add(table.origin.Line(1), block.kind->TableName(*table.kind) + " has " +
                                                 CountText(table.Rows(), "row") + " and no temperatures");
        }
    }
}

void LookAtUnflagged(const Material& material, CheckReport& report) {
    ForEachTable(material, [&](const Block& block, const Table& table) {
        const Column* temperature = table.Find("temperature");
        if (!temperature || table.temperatureDependent || !HoldsCurves(block, table)) return;
        const auto curves = CurvesOf(table, {"temperature"});
        if (curves.size() < 2) return;
        report.AddValue(block, table, *temperature, curves[1].first,
                        {"the rows above have " + WithUnit(temperature->values.front(), "K")});
    });
}

}  // namespace

CheckTopic TemperatureRules() {
    return {
        .title = "Temperatures",
        .rules = {
            {.code = "temperature",
             .says = "Temperatures are absolute and above 0 K, the reference temperature of a thermal "
                     "expansion included.",
             .bound = "has to be above 0 K",
             .source = kAbsolute,
             .look = LookAtZero},
            {.code = "temperature-order",
             .says = "Temperatures increase from row to row; where a temperature has a curve (hardening, "
                     "gaskets), from curve to curve.",
             .bound = "has to be above the one before",
             .source = kLookUp,
             .look = LookAtOrder},
            {.code = "scattered-curve",
             .says = "The rows of one temperature's curve stand together: no temperature comes back later.",
             .bound = "the rows of one temperature have to stand together",
             .source = kLookUp,
             .look = LookAtTogether},
            {.kind = FindingKind::WARNING,
             .code = "several-rows",
             .says = "A table that does not depend on temperature has one row.",
             .bound = "no temperature tells the rows apart",
             .source = kLookUp,
             .look = LookAtSeveralRows},
            {.kind = FindingKind::WARNING,
             .code = "unused-temperatures",
             .says = "Curves that do not depend on temperature have one temperature.",
             .bound = "the table is marked as not temperature dependent",
             .source = kLookUp,
             .look = LookAtUnflagged},
        }};
}

}  // namespace zelmat
