#pragma once

#include <optional>
#include <string>

#include "zelmat/CardNode.h"
#include "zelmat/LayupCard.h"

namespace zelmat {

/// Reads a layup card and checks its form. A card with a mistake is refused as a whole: every mistake is a
/// finding, in the order of the lines. A layer may lack its material, and a layup its layers: whether it can
/// be used like that is the module's to say.
class LayupCardReader {
public:
    explicit LayupCardReader(Findings& findings) : findings_(findings) {}

    /// Nothing when the file cannot be read or holds a mistake.
    std::optional<LayupCard> Read(const std::string& path);

private:
    void ReadCard(const CardNode& root, LayupCard& card) const;
    void ReadUnits(const CardNode& units) const;
    void ReadMaterials(const CardNode& materials, LayupCard& card) const;
    void ReadLayers(const CardNode& layers, LayupCard& card) const;
    std::optional<CardLayer> ReadLayer(const CardNode& node, const LayupCard& card) const;
    void CheckTotal(const CardNode& total, const LayupCard& card) const;

    Findings& findings_;
};

}  // namespace zelmat
