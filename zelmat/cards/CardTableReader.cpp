#include "zelmat/cards/CardTableReader.h"

#include <algorithm>

#include "zelmat/text/NumberText.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

bool Contains(const std::vector<std::string>& words, const std::string& word) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

std::vector<CardColumn> Wanted(const CardTable& table) {
    return table.form.ColumnsOf(table.temperatureDependent);
}

bool IsWanted(const CardTable& table, const std::string& name) {
    const auto wanted = Wanted(table);
    return std::any_of(wanted.begin(), wanted.end(),
                       [&](const CardColumn& column) { return column.name == name; });
}

std::string Expected(const CardTable& table) {
    return "expected " + WordList(Wanted(table), [](const CardColumn& column) {
               return column.whenAbsent ? column.name + " (or not)" : column.name;
           });
}

}  // namespace

std::vector<std::string> CardTableReader::Keys(const CardTableKind& kind) {
    std::vector<std::string> keys = {"columns", "rows", "source"};
    if (kind.flagged) keys.insert(keys.begin(), "temperature_dependent");
    return keys;
}

std::optional<CardTable> CardTableReader::Read() const {
    return kind_.list ? ReadList() : ReadColumns();
}

std::optional<CardTable> CardTableReader::ReadList() const {
    if (!node_.ExpectList()) return std::nullopt;
    CardTable table{.kind = &kind_, .form = *kind_.form(values_), .line = node_.Line()};
    for (std::size_t i = 0; i < node_.Size(); ++i) {
        const JsonNode node = node_.At(i);
        const auto value = node.Number();
        if (!value) continue;
        table.rows.push_back({*value});
        table.lines.push_back(node.Line());
    }
    return table.rows.size() == node_.Size() ? std::optional(std::move(table)) : std::nullopt;
}

std::optional<CardTable> CardTableReader::ReadColumns() const {
    if (!node_.ExpectObject()) return std::nullopt;
    // The block's reader looks at the keys of the block itself, where other values stand beside the table.
    bool good = kind_.name.empty() || node_.ExpectKeys(Keys(kind_));
    CardTable table{.kind = &kind_};
    const bool flagged = ReadFlag(table);
    const auto columnsNode = node_.Required("columns");
    const auto columns = columnsNode ? columnsNode->Texts() : std::nullopt;
    const auto form = kind_.form(values_);
    if (form) table.form = *form;

    std::optional<Order> order;
    if (flagged && form && columns) order = ReadOrder(table, *columns);
    const auto rows = columns ? ReadRows(*columns) : std::nullopt;
    if (!ReadSource(table)) good = false;
    if (!good || !order || !rows) return std::nullopt;

    const std::vector<CardColumn> wanted = Wanted(table);
    const JsonNode rowsNode = node_.At("rows");
    table.line = rowsNode.Line();
    for (std::size_t i = 0; i < rows->size(); ++i) {
        table.lines.push_back(rowsNode.At(i).Line());
        auto& values = table.rows.emplace_back();
        for (std::size_t column = 0; column < wanted.size(); ++column) {
            const auto& place = (*order)[column];
            values.push_back(place ? (*rows)[i][*place] : *wanted[column].whenAbsent);
        }
    }
    return ReportSurplusRows(table) ? std::nullopt : std::optional(std::move(table));
}

bool CardTableReader::ReadFlag(CardTable& table) const {
    if (!kind_.flagged) return true;
    const auto node = node_.Required("temperature_dependent");
    const auto flag = node ? node->Flag() : std::nullopt;
    table.temperatureDependent = flag.value_or(false);
    return flag.has_value();
}

bool CardTableReader::ReadSource(CardTable& table) const {
    if (!node_.Has("source")) return true;
    const auto source = node_.At("source").Text();
    table.source = source.value_or("");
    return source.has_value();
}

std::optional<CardTableReader::Order> CardTableReader::ReadOrder(
    const CardTable& table, const std::vector<std::string>& given) const {
    bool good = true;
    for (std::size_t i = 0; i < given.size(); ++i) {
        const JsonNode node = node_.At("columns").At(i);
        const auto first = std::find(given.begin(), given.end(), given[i]);
        if (first - given.begin() != static_cast<std::ptrdiff_t>(i)) {
            node.Report("repeated-column", node_.Path() + " has the column " + Quoted(given[i]) + " twice");
            good = false;
        } else if (!ReportColumn(table, node, given[i])) {
            good = false;
        }
    }
    // A misspelt column is missing under its right name too: that would be telling the same mistake twice.
    if (!good || !ReportMissing(table, given)) return std::nullopt;

    Order order;
    for (const CardColumn& column : Wanted(table)) {
        const auto found = std::find(given.begin(), given.end(), column.name);
        order.push_back(found == given.end()
                            ? std::nullopt
                            : std::optional(static_cast<std::size_t>(found - given.begin())));
    }
    return order;
}

/// False when the table has no such column.
bool CardTableReader::ReportColumn(const CardTable& table, const JsonNode& column,
                                   const std::string& name) const {
    if (IsWanted(table, name)) return true;
    if (name != TemperatureColumn().name) {
        column.Report("unknown-column", Subject(table) + " has no column " + Quoted(name), {Expected(table)});
    } else if (table.form.temperature == TemperatureRule::NEVER) {
        column.Report("temperature-column", Subject(table) + " takes no temperature column",
                      {Expected(table)});
    } else {
        column.Report("temperature-column",
                      node_.Path() + " is not temperature dependent but has a temperature column",
                      {Expected(table)});
    }
    return false;
}

bool CardTableReader::ReportMissing(const CardTable& table, const std::vector<std::string>& given) const {
    bool good = true;
    const JsonNode columns = node_.At("columns");
    for (const CardColumn& column : Wanted(table)) {
        if (column.whenAbsent || Contains(given, column.name)) continue;
        if (column.name != TemperatureColumn().name) {
            columns.Report("missing-column", Subject(table) + " lacks the column " + Quoted(column.name),
                           {Expected(table)});
        } else if (table.form.temperature == TemperatureRule::ALWAYS) {
            columns.Report("temperature-column", Subject(table) + " needs a temperature column",
                           {Expected(table)});
        } else {
            columns.Report("temperature-column",
                           node_.Path() + " is temperature dependent but has no temperature column",
                           {Expected(table)});
        }
        good = false;
    }
    return good;
}

std::optional<CardTableReader::Rows> CardTableReader::ReadRows(
    const std::vector<std::string>& columns) const {
    const auto node = node_.Required("rows");
    if (!node || !node->ExpectList()) return std::nullopt;
    if (node->Size() == 0) {
        node->Report("empty-rows", node_.Path() + " has no rows", {"leave it out if it is not defined"});
        return std::nullopt;
    }
    Rows rows;
    bool good = true;
    for (std::size_t i = 0; i < node->Size(); ++i) {
        auto row = ReadRow(node->At(i), i + 1, columns);
        if (row) {
            rows.push_back(std::move(*row));
        } else {
            good = false;
        }
    }
    return good ? std::optional(std::move(rows)) : std::nullopt;
}

std::optional<std::vector<double>> CardTableReader::ReadRow(const JsonNode& row, std::size_t number,
                                                            const std::vector<std::string>& columns) const {
    if (!row.ExpectList()) return std::nullopt;
    if (row.Size() != columns.size()) {
        row.Report("ragged-row",
                   "row " + std::to_string(number) + " of " + node_.Path() + " has " +
                       CountText(row.Size(), "value"),
                   {"expected " + std::to_string(columns.size()) + ": " + WordList(columns)});
        return std::nullopt;
    }
    std::vector<double> values;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const auto value = row.At(i).Number();
        if (value) values.push_back(*value);
    }
    return values.size() == columns.size() ? std::optional(std::move(values)) : std::nullopt;
}

bool CardTableReader::ReportSurplusRows(const CardTable& table) const {
    if (!table.form.singleRow || table.rows.size() == 1) return false;
    node_.At("rows")
        .At(std::size_t{1})
        .Report("surplus-rows", Subject(table) + " takes one row",
                {"got " + std::to_string(table.rows.size()), "the others would be lost"});
    return true;
}

std::string CardTableReader::Subject(const CardTable& table) const {
    return table.form.with.empty() ? node_.Path() : node_.Path() + " with " + table.form.with;
}

}  // namespace zelmat
