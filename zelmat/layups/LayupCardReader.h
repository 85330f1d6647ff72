#pragma once

#include <optional>
#include <string>

#include "zelmat/files/JsonNode.h"
#include "zelmat/layups/LayupCard.h"

namespace zelmat {

/// Reads a layup card and checks its form. A card with a mistake is refused as a whole: every mistake is a
/// finding, in the order of the lines. A layer may lack its material, and a layup its layers: whether it can
/// be used like that is the module's to say.
class LayupCardReader {
public:
    explicit LayupCardReader(Findings& findings) : findings_(findings) {}

    /// Nothing when the file cannot be read or holds a mistake. "-" is standard input.
    std::optional<LayupCard> Read(const std::string& path);

    /// The same of a text that was read already; `name` is what findings call its file.
    std::optional<LayupCard> ReadText(std::string text, const std::string& name);

private:
    void ReadCard(const JsonNode& root, LayupCard& card) const;
    void ReadUnits(const JsonNode& units) const;
    void ReadMaterials(const JsonNode& materials, LayupCard& card) const;
    void ReadLayers(const JsonNode& layers, LayupCard& card) const;
    std::optional<CardLayer> ReadLayer(const JsonNode& node, const LayupCard& card) const;
    void CheckTotal(const JsonNode& total, const LayupCard& card) const;

    Findings& findings_;
};

}  // namespace zelmat
