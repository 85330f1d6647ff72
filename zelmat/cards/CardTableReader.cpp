#include "zelmat/cards/CardTableReader.h"

#include <algorithm>

#include "zelmat/cards/PropertyNames.h"
#include "zelmat/materials/QuantityOf.h"
#include "zelmat/quantities/Measured.h"
#include "zelmat/quantities/UnitConversion.h"
#include "zelmat/text/CountText.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

bool Contains(const std::vector<std::string>& words, const std::string& word) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

bool IsWanted(const std::vector<ColumnKind>& wanted, const std::string& name) {
    return std::any_of(wanted.begin(), wanted.end(),
                       [&](const ColumnKind& column) { return column.name == name; });
}

std::string Expected(const std::vector<ColumnKind>& wanted) {
    return "expected " + WordList(wanted, [](const ColumnKind& column) {
               return column.whenAbsent ? column.name + " (or not)" : column.name;
           });
}

/// As many numbers as there are columns.
bool IsRow(const nlohmann::json& row, std::size_t columns) {
    if (!row.is_array() || row.size() != columns) return false;
    return std::all_of(row.begin(), row.end(),
                       [](const nlohmann::json& number) { return number.is_number(); });
}

}  // namespace

std::vector<std::string> CardTableReader::Keys(const TableKind& kind) {
    std::vector<std::string> keys = {"columns", "rows", "source"};
    if (kind.flagged) keys.insert(keys.begin(), "temperature_dependent");
    return keys;
}

std::optional<Table> CardTableReader::Read() {
    return kind_.list ? ReadList() : ReadColumns();
}

std::optional<Table> CardTableReader::ReadList() {
    if (!node_.ExpectList()) return std::nullopt;
    Table table = EmptyTable(kind_, values_, false);
    table.origin = OriginOf(node_);
    auto& numbers = table.columns.front().values;
    for (std::size_t i = 0; i < node_.Size(); ++i) {
        if (const auto number = node_.At(i).Number()) numbers.push_back(*number);
    }
    return numbers.size() == node_.Size() ? std::optional(std::move(table)) : std::nullopt;
}

std::optional<Table> CardTableReader::ReadColumns() {
    if (!node_.ExpectObject()) return std::nullopt;
    bool good = true;
    Table table{.kind = &kind_};
    const bool flagged = ReadFlag(table);
    const auto columnsNode = node_.Required("columns");
    const auto columns = columnsNode ? columnsNode->Texts() : std::nullopt;
    const auto form = kind_.form(values_);
    std::optional<Order> order;
    if (flagged && form) {
        form_ = *form;
        wanted_ = form_.ColumnsOf(table.temperatureDependent);
        for (const ColumnKind& column : wanted_) table.columns.push_back({.kind = column});
        if (columns) order = ReadOrder(ColumnNames(*columns));
    }
    const bool read = columns && ReadRows(*columns, order, table);
    if (read && order && !ConvertColumns(*order, table)) good = false;
    if (!ReadSource(table)) good = false;
    if (!good || !order || !read) return std::nullopt;
    table.origin = OriginOf(node_.At("rows"));
    return ReportSurplusRows(table) ? std::nullopt : std::optional(std::move(table));
}

bool CardTableReader::ReadFlag(Table& table) const {
    if (!kind_.flagged) return true;
    const auto node = node_.Required("temperature_dependent");
    const auto flag = node ? node->Flag() : std::nullopt;
    table.temperatureDependent = flag.value_or(false);
    return flag.has_value();
}

bool CardTableReader::ReadSource(Table& table) const {
    if (!node_.Has("source")) return true;
    const auto source = node_.At("source").Text();
    table.source = source.value_or("");
    return source.has_value();
}

std::vector<std::string> CardTableReader::ColumnNames(const std::vector<std::string>& headers) const {
    std::vector<std::string> names;
    for (const std::string& header : headers) {
        const std::string name = ReadColumnHeader(header).name;
        const std::string canonical = IsWanted(wanted_, name) ? name : PropertyName(name);
        names.push_back(IsWanted(wanted_, canonical) ? canonical : name);
    }
    return names;
}

std::optional<CardTableReader::Order> CardTableReader::ReadOrder(
    const std::vector<std::string>& given) const {
    bool good = true;
    for (std::size_t i = 0; i < given.size(); ++i) {
        const JsonNode node = node_.At("columns").At(i);
        const auto first = std::find(given.begin(), given.end(), given[i]);
        if (first - given.begin() != static_cast<std::ptrdiff_t>(i)) {
            node.Report("repeated-column", node_.Path() + " has the column " + Quoted(given[i]) + " twice");
            good = false;
        } else if (!ReportColumn(node, given[i])) {
            good = false;
        }
    }
    // A misspelt column is missing under its right name too: that would be telling the same mistake twice.
    if (!good || !ReportMissing(given)) return std::nullopt;

    Order order;
    for (const ColumnKind& column : wanted_) {
        const auto found = std::find(given.begin(), given.end(), column.name);
        order.push_back(found == given.end()
                            ? std::nullopt
                            : std::optional(static_cast<std::size_t>(found - given.begin())));
    }
    return order;
}

/// False when the table has no such column.
bool CardTableReader::ReportColumn(const JsonNode& column, const std::string& name) const {
    if (IsWanted(wanted_, name)) return true;
    if (name != TemperatureColumn().name) {
        column.Report("unknown-column", Subject() + " has no column " + Quoted(name), {Expected(wanted_)});
    } else if (form_.temperature == TemperatureRule::NEVER) {
        column.Report("temperature-column", Subject() + " takes no temperature column", {Expected(wanted_)});
    } else {
        column.Report("temperature-column",
                      node_.Path() + " is not temperature dependent but has a temperature column",
                      {Expected(wanted_)});
    }
    return false;
}

bool CardTableReader::ReportMissing(const std::vector<std::string>& given) const {
    bool good = true;
    const JsonNode columns = node_.At("columns");
    for (const ColumnKind& column : wanted_) {
        if (column.whenAbsent || Contains(given, column.name)) continue;
        if (column.name != TemperatureColumn().name) {
            columns.Report("missing-column", Subject() + " lacks the column " + Quoted(column.name),
                           {Expected(wanted_)});
        } else if (form_.temperature == TemperatureRule::ALWAYS) {
            columns.Report("temperature-column", Subject() + " needs a temperature column",
                           {Expected(wanted_)});
        } else {
            columns.Report("temperature-column",
                           node_.Path() + " is temperature dependent but has no temperature column",
                           {Expected(wanted_)});
        }
        good = false;
    }
    return good;
}

bool CardTableReader::ReadRows(const std::vector<std::string>& given, const std::optional<Order>& order,
                               Table& table) const {
    const auto node = node_.Required("rows");
    if (!node || !node->ExpectList()) return false;
    if (node->Size() == 0) {
        node->Report("empty-rows", node_.Path() + " has no rows", {"leave it out if it is not defined"});
        return false;
    }
    if (order) {
        for (Column& column : table.columns) column.values.reserve(node->Size());
    }
    bool good = true;
    std::size_t number = 0;
    for (const nlohmann::json& row : node->Json()) {
        ++number;
        if (!IsRow(row, given.size())) {
            ReportRow(node->At(number - 1), number, given);
            good = false;
        } else if (order) {
            for (std::size_t at = 0; at < order->size(); ++at) {
                const auto& place = (*order)[at];
                table.columns[at].values.push_back(place ? row[*place].get<double>()
                                                         : *wanted_[at].whenAbsent);
            }
        }
    }
    return good;
}

bool CardTableReader::ConvertColumns(const Order& order, Table& table) const {
    bool good = true;
    for (std::size_t at = 0; at < order.size(); ++at) {
        if (!order[at]) continue;  // 0 in every unit
        const JsonNode header = node_.At("columns").At(*order[at]);
        if (!ConvertColumn(header, table.columns[at])) good = false;
    }
    return good;
}

bool CardTableReader::ConvertColumn(const JsonNode& header, Column& column) const {
    const ColumnHeader given = ReadColumnHeader(header.Json().get_ref<const std::string&>());
    const Quantity* quantity = QuantityOf(column.kind.name, column.kind.unit);
    if (!quantity) return true;
    if (!given.hasUnit && units_.HasToBeNamed(*quantity)) {
        header.Report("no-unit", "the column " + Quoted(given.name) + " has no unit",
                      {"expected " + given.name + " [" + quantity->units.front().Spelling() + "]",
                       "units that do: " + UnitsThatDo(*quantity)});
        return false;
    }
    const auto unit =
        given.hasUnit ? ReadUnit(given.unit, *quantity) : QuantityResult<Unit>(units_.For(*quantity));
    if (!unit) {
        header.Report("wrong-unit", unit.Error().text);
        return false;
    }
    if (*unit == quantity->stored) return true;
    const auto conversion = UnitConversion::ToStored(*unit, *quantity);
    if (conversion.IsIdentity()) {
        column.written = WrittenNumbers{unit->Spelling(), {}};
        return true;
    }
    column.written = WrittenNumbers{unit->Spelling(), column.values};
    const auto failed = conversion.Convert(column.values);
    if (!failed) return true;
    const Measured number{column.written->numbers[*failed], *unit};
    node_.At("rows").At(*failed).Report("wrong-value", number.Stored(*quantity).Error().text);
    return false;
}

void CardTableReader::ReportRow(const JsonNode& row, std::size_t number,
                                const std::vector<std::string>& given) const {
    if (!row.ExpectList()) return;
    if (row.Size() != given.size()) {
        row.Report("ragged-row",
                   "row " + std::to_string(number) + " of " + node_.Path() + " has " +
                       CountText(row.Size(), "value"),
                   {"expected " + std::to_string(given.size()) + ": " + WordList(given)});
        return;
    }
    for (std::size_t i = 0; i < given.size(); ++i) (void)row.At(i).Number();
}

bool CardTableReader::ReportSurplusRows(const Table& table) const {
    if (!form_.singleRow || table.Rows() == 1) return false;
    node_.At("rows")
        .At(std::size_t{1})
        .Report("surplus-rows", Subject() + " takes one row",
                {"got " + std::to_string(table.Rows()), "the others would be lost"});
    return true;
}

Origin CardTableReader::OriginOf(const JsonNode& node) const {
    return Origin([file = file_, node](std::size_t row) {
        return row == Origin::kWhole ? node.Line() : node.At(row).Line();
    });
}

std::string CardTableReader::Subject() const {
    return form_.with.empty() ? node_.Path() : node_.Path() + " with " + form_.with;
}

}  // namespace zelmat
