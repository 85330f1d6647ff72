#pragma once

#include <optional>

#include "zelmat/files/JsonNode.h"
#include "zelmat/materials/MaterialCard.h"

namespace zelmat {

/// Reads what a card gives for one block: the single values, then the tables. Reports every mistake in it,
/// and answers nothing if there is one.
class CardBlockReader {
public:
    CardBlockReader(const JsonNode& node, const CardBlock& block) : node_(node), block_(block) {}

    std::optional<CardData> Read() const;

private:
    bool ReportUnknownKeys() const;
    bool ReadSetting(const CardSetting& setting, CardValues& values) const;
    std::optional<CardValue> ReadValue(const CardSetting& setting, const JsonNode& node) const;
    std::optional<CardValue> ReadText(const CardSetting& setting, const JsonNode& node) const;
    bool ReadTable(const CardTableKind& kind, CardData& data) const;

    JsonNode node_;
    const CardBlock& block_;
};

}  // namespace zelmat
