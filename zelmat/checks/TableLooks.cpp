#include "zelmat/checks/TableLooks.h"

#include <algorithm>
#include <cassert>

namespace zelmat {

namespace {

void LookAtColumn(const Block& block, const char* name, bool (*wrong)(double value), CheckReport& report) {
    for (const Table& table : block.tables) {
        const Column* column = table.Find(name);
        if (!column) continue;
        for (std::size_t row = 0; row < column->values.size(); ++row) {
            if (wrong(column->values[row])) report.AddValue(block, table, *column, row);
        }
    }
}

}  // namespace

MaterialLook EachValue(std::vector<ColumnOfBlock> columns, bool (*wrong)(double value)) {
    return [columns = std::move(columns), wrong](const Material& material, CheckReport& report) {
        for (const ColumnOfBlock& each : columns) {
            if (const Block* block = material.Find(each.block)) {
                LookAtColumn(*block, each.column, wrong, report);
            }
        }
    };
}

const TableRule& RuleOfBehavior(const std::string& block, const std::string& table, const std::string& code) {
    const auto& rules = FindBlockKind(block)->FindTable(table)->rules;
    const auto found =
        std::find_if(rules.begin(), rules.end(), [&](const TableRule& rule) { return rule.code == code; });
    assert(found != rules.end());
    return *found;
}

void ForEachTable(const Material& material, const std::function<void(const Block&, const Table&)>& visit) {
    for (const auto* blocks : {&material.blocks, &material.fits, &material.information}) {
        for (const Block& block : *blocks) {
            for (const Table& table : block.tables) visit(block, table);
        }
    }
}

bool HoldsCurves(const Block& block, const Table& table) {
    return table.Find("plastic_strain") || block.kind->name == "gasket";
}

std::vector<Curve> CurvesOf(const Table& table, const std::vector<const char*>& columns) {
    std::vector<const Column*> keys;
    for (const char* name : columns) {
        if (const Column* column = table.Find(name)) keys.push_back(column);
    }
    std::vector<Curve> curves;
    for (std::size_t row = 0; row < table.Rows(); ++row) {
        const bool same = row > 0 && std::all_of(keys.begin(), keys.end(), [row](const Column* key) {
                              return key->values[row] == key->values[row - 1];
                          });
        if (!same) curves.push_back({row, row});
        curves.back().end = row + 1;
    }
    return curves;
}

}  // namespace zelmat
