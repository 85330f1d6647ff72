#pragma once

#include <vector>

#include "zelmat/materials/DocumentMaterials.h"

namespace zelmat {

/// A material in the shape of a card, and the data of its behaviors that are switched off with it.
struct WholeMaterial {
    Material material;
    std::vector<const BlockKind*> off;  ///< of the behaviors in it that are switched off
};

/// Reads it from a document. Switches behaviors on meanwhile: for a step that is not committed.
WholeMaterial ReadWholeMaterial(const DocumentMaterial& material, const std::string& file,
                                Findings& findings);

/// Makes such a material in a document; false when it cannot be made at all. Findings tell what was not
/// stored.
bool AddWholeMaterial(KORMemoryDocument& document, const WholeMaterial& whole, Findings& findings);

}  // namespace zelmat
