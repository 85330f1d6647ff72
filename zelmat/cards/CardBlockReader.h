#pragma once

#include <memory>
#include <optional>

#include "zelmat/cards/CardUnits.h"
#include "zelmat/files/JsonNode.h"
#include "zelmat/materials/Material.h"

namespace zelmat {

/// Reads what a card gives for one block: the single values, then the tables. Reports every mistake in it,
/// and answers nothing if there is one. A key that means nothing is a warning and kept under its name; keys
/// that begin with "//" are comments.
class CardBlockReader {
public:
    /// `file`: the one that the node is of. `units`: the card's; they outlive the reader.
    CardBlockReader(const JsonNode& node, const BlockKind& kind, const CardUnits& units,
                    std::shared_ptr<const PlacedJson> file)
        : node_(node), kind_(kind), units_(units), file_(std::move(file)) {}

    std::optional<Block> Read() const;

private:
    /// What the block and its groups and tables have beside the keys that mean something.
    bool KeepUnknownKeys(Block& block) const;
    void KeepUnknownKeys(const JsonNode& node, const std::vector<std::string>& known,
                         const std::string& group, Block& block) const;
    bool ReadSetting(const Setting& setting, Block& block) const;
    std::optional<Value> ReadValue(const Setting& setting, const JsonNode& node, Block& block) const;
    std::optional<double> ReadNumber(const Setting& setting, const JsonNode& node, Block& block) const;
    std::optional<Value> ReadText(const Setting& setting, const JsonNode& node) const;
    bool ReadTable(const TableKind& kind, Block& block) const;
    /// The order of a potential, which its coefficients tell where the card does not.
    bool FindOrder(Block& block) const;

    JsonNode node_;
    const BlockKind& kind_;
    const CardUnits& units_;
    std::shared_ptr<const PlacedJson> file_;
};

}  // namespace zelmat
