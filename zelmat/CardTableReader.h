#pragma once

#include <optional>

#include "zelmat/CardNode.h"
#include "zelmat/MaterialCard.h"

namespace zelmat {

/// Reads the table of one block. Reports every mistake in it, and answers nothing if there is one.
class CardTableReader {
public:
    CardTableReader(const CardNode& node, const CardBlock& block) : node_(node), block_(block) {}

    std::optional<CardTable> Read();

private:
    using Rows = std::vector<std::vector<double>>;

    bool ReportUnknownKeys() const;
    const CardTableForm* ReadForm() const;

    /// Where in the card's columns each wanted column stands.
    std::optional<std::vector<std::size_t>> ReadOrder(const CardTableForm& form, bool temperatureDependent,
                                                      const std::vector<std::string>& given) const;
    bool ReportMissing(const CardTableForm& form, const std::vector<CardColumn>& wanted,
                       const std::vector<std::string>& given) const;
    std::optional<Rows> ReadRows(const std::vector<std::string>& columns) const;
    std::optional<std::vector<double>> ReadRow(const CardNode& row, std::size_t number,
                                               const std::vector<std::string>& columns) const;

    CardNode node_;
    const CardBlock& block_;
};

}  // namespace zelmat
