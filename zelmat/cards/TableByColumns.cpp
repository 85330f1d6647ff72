#include "zelmat/cards/TableByColumns.h"

#include <algorithm>

#include "zelmat/cards/PropertyNames.h"
#include "zelmat/materials/Values.h"

namespace zelmat {

namespace {

bool Fits(const TableForm& form, const std::vector<std::string>& names) {
    std::size_t met = 0;
    const auto all = form.ColumnsOf(true);
    for (const ColumnKind& column : all) {
        const bool there = std::any_of(names.begin(), names.end(), [&](const std::string& name) {
            return name == column.name || PropertyName(name) == column.name;
        });
        if (there) ++met;
        const bool mayLack = column.whenAbsent || column.name == TemperatureColumn().name;
        if (!there && !mayLack) return false;
    }
    return met == names.size();
}

/// The values that tell a table's form: its first setting's choices, or none; of a potential, which has its
/// order for second setting, with the most terms.
std::vector<Values> FormValues(const BlockKind& block) {
    std::vector<Values> all(1);
    if (block.settings.empty()) return all;
    for (const std::string& choice : block.settings.front().choices) {
        Values& values = all.emplace_back();
        values.Set(block.settings.front().name, choice);
        if (block.alternatives) values.Set(block.settings.at(1).name, block.settings.at(1).most);
    }
    return all;
}

}  // namespace

bool HasColumn(const BlockKind& block, const std::string& column, const std::string& table) {
    for (const TableKind& each : block.tables) {
        if (each.name != table) continue;
        for (const Values& values : FormValues(block)) {
            const auto form = each.form(values);
            if (!form) continue;
            for (const ColumnKind& kind : form->ColumnsOf(true)) {
                if (kind.name == column) return true;
            }
        }
    }
    return false;
}

const BlockKind* BlockOfProperty(const std::string& property) {
    if (property == TemperatureColumn().name) return nullptr;
    for (const char* name : {"elastic", "density", "thermal_expansion", "conductivity", "specific_heat"}) {
        const BlockKind* kind = FindBlockKind(name);
        if (HasColumn(*kind, property)) return kind;
    }
    return nullptr;
}

std::optional<FoundTable> FindTableByColumns(const std::vector<std::string>& names) {
    for (const BlockKind& block : BlockKinds()) {
        if (block.use != BlockUse::BEHAVIOR || block.alternatives) continue;
        for (const TableKind& table : block.tables) {
            for (const Values& values : FormValues(block)) {
                const auto form = table.form(values);
                if (form && Fits(*form, names)) return FoundTable{&block, &table};
            }
        }
    }
    return std::nullopt;
}

}  // namespace zelmat
