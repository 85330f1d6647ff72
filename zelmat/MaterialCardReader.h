#pragma once

#include <optional>
#include <string>

#include "zelmat/CardNode.h"
#include "zelmat/MaterialCard.h"

namespace zelmat {

/// Reads a material card and checks its form. A card with a mistake is refused as a whole: every mistake is a
/// finding, in the order of the lines. Whether the values make physical sense is not looked at.
class MaterialCardReader {
public:
    explicit MaterialCardReader(Findings& findings) : findings_(findings) {}

    /// Nothing when the file cannot be read or holds a mistake.
    std::optional<MaterialCard> Read(const std::string& path);

private:
    void ReadHead(const CardNode& root, MaterialCard& card) const;
    void ReadUnits(const CardNode& units) const;
    void ReadBlocks(const CardNode& root, MaterialCard& card) const;
    void ReadAlternatives(const CardNode& node, const CardBlock& block, MaterialCard& card) const;
    void ReportUnknownBlocks(const CardNode& root) const;

    Findings& findings_;
};

}  // namespace zelmat
