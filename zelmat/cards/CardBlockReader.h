#pragma once

#include <memory>
#include <optional>

#include "zelmat/files/JsonNode.h"
#include "zelmat/materials/Material.h"

namespace zelmat {

/// Reads what a card gives for one block: the single values, then the tables. Reports every mistake in it,
/// and answers nothing if there is one.
class CardBlockReader {
public:
    /// `file`: the one that the node is of.
    CardBlockReader(const JsonNode& node, const BlockKind& kind, std::shared_ptr<const KORJsonFile> file)
        : node_(node), kind_(kind), file_(std::move(file)) {}

    std::optional<Block> Read() const;

private:
    bool ReportUnknownKeys() const;
    bool ReadSetting(const Setting& setting, Block& block) const;
    std::optional<Value> ReadValue(const Setting& setting, const JsonNode& node) const;
    std::optional<Value> ReadText(const Setting& setting, const JsonNode& node) const;
    bool ReadTable(const TableKind& kind, Block& block) const;

    JsonNode node_;
    const BlockKind& kind_;
    std::shared_ptr<const KORJsonFile> file_;
};

}  // namespace zelmat
