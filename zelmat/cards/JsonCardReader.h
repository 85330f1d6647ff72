#pragma once

#include <memory>
#include <string>
#include <vector>

#include "zelmat/cards/CardUnits.h"
#include "zelmat/files/JsonNode.h"
#include "zelmat/materials/Material.h"

namespace zelmat {

/// Gives meaning to a material card as a tree of values, which a JSON file is by itself and which the readers
/// of the other forms make; checks its form. A card is one material, or a list of such. A material with a
/// mistake is refused as a whole: every mistake is a finding, in the order of the lines. What the program
/// does not know is a warning and kept as it is. Whether the values make physical sense is not looked at.
class JsonCardReader {
public:
    /// The version of the form that this program writes and the newest that it reads.
    static constexpr int kVersion = 1;

    JsonCardReader(std::shared_ptr<const PlacedJson> file, Findings& findings,
                   BareColumns bare = BareColumns::SI)
        : file_(std::move(file)), findings_(findings), bare_(bare) {}

    /// The materials without a mistake.
    std::vector<Material> Read();

private:
    void ReadMaterial(const JsonNode& root, Findings& mistakes, std::vector<Material>& materials) const;
    bool ReadVersion(const JsonNode& root) const;
    void ReadHead(const JsonNode& root, Material& material) const;
    void ReadBlocks(const JsonNode& root, const CardUnits& units, Material& material) const;
    void ReadAlternatives(const JsonNode& node, const BlockKind& kind, const CardUnits& units,
                          Material& material) const;
    void KeepUnknownBlocks(const JsonNode& root, Material& material) const;

    std::shared_ptr<const PlacedJson> file_;
    Findings& findings_;
    BareColumns bare_;
};

}  // namespace zelmat
