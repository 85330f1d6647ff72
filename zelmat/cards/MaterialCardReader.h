#pragma once

#include <optional>
#include <string>

#include "zelmat/files/JsonNode.h"
#include "zelmat/materials/MaterialCard.h"

namespace zelmat {

/// Reads a material card and checks its form. A card with a mistake is refused as a whole: every mistake is a
/// finding, in the order of the lines. Whether the values make physical sense is not looked at.
class MaterialCardReader {
public:
    explicit MaterialCardReader(Findings& findings) : findings_(findings) {}

    /// Nothing when the file cannot be read or holds a mistake.
    std::optional<MaterialCard> Read(const std::string& path);

private:
    void ReadHead(const JsonNode& root, MaterialCard& card) const;
    void ReadUnits(const JsonNode& units) const;
    void ReadBlocks(const JsonNode& root, MaterialCard& card) const;
    void ReadAlternatives(const JsonNode& node, const CardBlock& block, MaterialCard& card) const;
    void ReportUnknownBlocks(const JsonNode& root) const;

    Findings& findings_;
};

}  // namespace zelmat
