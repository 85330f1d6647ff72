#pragma once

#include <optional>

#include "zelmat/files/JsonNode.h"
#include "zelmat/materials/MaterialCard.h"

namespace zelmat {

/// Reads one table of a block. Reports every mistake in it, and answers nothing if there is one.
class CardTableReader {
public:
    /// `values`: the block's, which say what form the table has.
    CardTableReader(const JsonNode& node, const CardTableKind& kind, const CardValues& values)
        : node_(node), kind_(kind), values_(values) {}

    /// The keys that a table of this kind takes.
    static std::vector<std::string> Keys(const CardTableKind& kind);

    std::optional<CardTable> Read() const;

private:
    using Rows = std::vector<std::vector<double>>;
    using Order = std::vector<std::optional<std::size_t>>;

    std::optional<CardTable> ReadList() const;
    std::optional<CardTable> ReadColumns() const;
    bool ReadFlag(CardTable& table) const;
    bool ReadSource(CardTable& table) const;

    /// Where in the card's columns each wanted column stands; nowhere when it may be left out and is.
    std::optional<Order> ReadOrder(const CardTable& table, const std::vector<std::string>& given) const;
    bool ReportColumn(const CardTable& table, const JsonNode& column, const std::string& name) const;
    bool ReportMissing(const CardTable& table, const std::vector<std::string>& given) const;
    std::optional<Rows> ReadRows(const std::vector<std::string>& columns) const;
    std::optional<std::vector<double>> ReadRow(const JsonNode& row, std::size_t number,
                                               const std::vector<std::string>& columns) const;
    bool ReportSurplusRows(const CardTable& table) const;

    /// How messages name the table: "plastic with isotropic hardening".
    std::string Subject(const CardTable& table) const;

    JsonNode node_;
    const CardTableKind& kind_;
    const CardValues& values_;
};

}  // namespace zelmat
