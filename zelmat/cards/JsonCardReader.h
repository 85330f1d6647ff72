#pragma once

#include <memory>
#include <optional>
#include <string>

#include "zelmat/files/JsonNode.h"
#include "zelmat/materials/Material.h"

namespace zelmat {

/// Reads a material card in its JSON form and checks that form. A card with a mistake is refused as a whole:
/// every mistake is a finding, in the order of the lines. A block that the program does not know is a warning
/// and kept as it is. Whether the values make physical sense is not looked at.
class JsonCardReader {
public:
    explicit JsonCardReader(Findings& findings) : findings_(findings) {}

    /// Nothing when the file cannot be read or holds a mistake.
    std::optional<Material> Read(const std::string& path);

private:
    using File = std::shared_ptr<const KORJsonFile>;

    void ReadHead(const JsonNode& root, Material& material) const;
    void ReadUnits(const JsonNode& units) const;
    void ReadBlocks(const JsonNode& root, const File& file, Material& material) const;
    void ReadAlternatives(const JsonNode& node, const BlockKind& kind, const File& file,
                          Material& material) const;
    void KeepUnknownBlocks(const JsonNode& root, Material& material) const;

    Findings& findings_;
};

}  // namespace zelmat
