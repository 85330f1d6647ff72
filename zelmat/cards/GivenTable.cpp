#include "zelmat/cards/GivenTable.h"

#include <algorithm>

#include "zelmat/cards/PropertyNames.h"
#include "zelmat/files/ReadText.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

using Json = nlohmann::json;

bool IsTable(const Json& tree) {
    if (!tree.is_object() || !tree.contains("columns") || !tree.contains("rows")) return false;
    const auto all = [](const Json& list, auto is) {
        return list.is_array() && std::all_of(list.begin(), list.end(), is);
    };
    return all(tree["columns"], [](const Json& header) { return header.is_string(); }) &&
           all(tree["rows"], [](const Json& row) { return row.is_array(); });
}

/// The only table of a card that has columns and rows, wherever it stands; null when there is not one alone.
const Json* OnlyTable(const Json& tree) {
    if (IsTable(tree)) return &tree;
    const Json* found = nullptr;
    if (!tree.is_structured()) return nullptr;
    for (const Json& inner : tree) {
        const Json* table = OnlyTable(inner);
        if (table && found) return nullptr;
        if (table) found = table;
    }
    return found;
}

/// The wanted column that lacks its unit in this header; null when none does.
const ColumnKind* WithoutUnit(const ColumnHeader& header, const std::vector<ColumnKind>& wanted) {
    if (header.hasUnit) return nullptr;
    for (const ColumnKind& column : wanted) {
        const bool same = header.name == column.name || PropertyName(header.name) == column.name;
        if (same && !column.unit.empty() && column.unit != "-") return &column;
    }
    return nullptr;
}

}  // namespace

std::optional<nlohmann::ordered_json> ReadGivenTable(const std::string& path,
                                                     const std::vector<ColumnKind>& wanted,
                                                     const CardReading& how, Findings& findings) {
    const auto refuse = [&](const char* code, std::string text, std::vector<std::string> details) {
        findings.Add({FindingKind::ERROR, {path, 0}, code, std::move(text), std::move(details)});
        return std::nullopt;
    };
    auto text = ReadText(path, findings);
    if (!text) return std::nullopt;
    const auto tree = ReadCardTree(std::move(*text), path, findings, how);
    if (!tree) return std::nullopt;
    const Json* given = OnlyTable(tree->Root());
    if (!given) return refuse("no-table", "expected one table with a header line", {});
    for (const Json& header : given->at("columns")) {
        const ColumnHeader read = ReadColumnHeader(header.get<std::string>());
        if (const ColumnKind* column = WithoutUnit(read, wanted)) {
            return refuse("no-unit", "the column " + Quoted(read.name) + " has no unit",
                          {"as in " + column->name + " [" + column->unit + "]"});
        }
    }
    nlohmann::ordered_json table;
    for (const char* key : {"columns", "rows", "temperature_dependent"}) {
        if (given->contains(key)) table[key] = given->at(key);
    }
    return table;
}

}  // namespace zelmat
