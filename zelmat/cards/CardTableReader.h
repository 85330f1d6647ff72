#pragma once

#include <memory>
#include <optional>

#include "zelmat/cards/CardUnits.h"
#include "zelmat/files/JsonNode.h"
#include "zelmat/materials/Material.h"

namespace zelmat {

/// Reads one table of a block. Reports every mistake in it, and answers nothing if there is one.
class CardTableReader {
public:
    /// `values`: the block's, which say what form the table has. `file`: the one that the node is of.
    /// `units`: the card's.
    CardTableReader(const JsonNode& node, const TableKind& kind, const Values& values, const CardUnits& units,
                    std::shared_ptr<const PlacedJson> file)
        : node_(node), kind_(kind), values_(values), units_(units), file_(std::move(file)) {}

    /// The keys that a table of this kind takes.
    static std::vector<std::string> Keys(const TableKind& kind);

    std::optional<Table> Read();

private:
    /// Where in the card's columns each column of the table stands; nowhere when it may be left out and is.
    using Order = std::vector<std::optional<std::size_t>>;

    std::optional<Table> ReadList();
    std::optional<Table> ReadColumns();
    bool ReadFlag(Table& table) const;
    bool ReadSource(Table& table) const;

    /// The columns' names as the form has them, whatever the card calls them; units aside.
    std::vector<std::string> ColumnNames(const std::vector<std::string>& headers) const;
    std::optional<Order> ReadOrder(const std::vector<std::string>& given) const;
    bool ReportColumn(const JsonNode& column, const std::string& name) const;
    bool ReportMissing(const std::vector<std::string>& given) const;

    /// Puts the numbers into the table's columns; without an order it only looks for mistakes.
    bool ReadRows(const std::vector<std::string>& given, const std::optional<Order>& order,
                  Table& table) const;
    /// Brings the numbers into the stored units, from the ones that the headers or else the card name.
    bool ConvertColumns(const Order& order, Table& table) const;
    bool ConvertColumn(const JsonNode& header, Column& column) const;
    void ReportRow(const JsonNode& row, std::size_t number, const std::vector<std::string>& given) const;
    bool ReportSurplusRows(const Table& table) const;

    /// The place of a node and of its members, for as long as the file's text is kept for it.
    Origin OriginOf(const JsonNode& node) const;

    /// How messages name the table: "plastic with isotropic hardening".
    std::string Subject() const;

    JsonNode node_;
    const TableKind& kind_;
    const Values& values_;
    const CardUnits& units_;
    std::shared_ptr<const PlacedJson> file_;
    TableForm form_ = {};
    std::vector<ColumnKind> wanted_ = {};
};

}  // namespace zelmat
