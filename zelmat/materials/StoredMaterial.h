#pragma once

#include <optional>
#include <vector>

#include "zelmat/materials/MaterialHost.h"

namespace zelmat {

/// What a document holds of one block, beside what was given for it.
struct StoredBlock {
    Block block;
    const Block* given = nullptr;  ///< null when nothing was
};

/// What a document holds of a material, beside what was given.
struct StoredMaterial {
    const Material* given = nullptr;
    std::optional<bool> heatGeneration = std::nullopt;
    /// One for each behavior, in the order of BlockKinds(); of the hyperelastic one as many as were asked
    /// for, each as it was stored in its turn. Empty when something could not be stored.
    std::vector<StoredBlock> blocks = {};
    std::size_t features = 0;  ///< that the material made in the document

    std::vector<const StoredBlock*> SwitchedOn() const;
    std::vector<std::string> Names(bool switchedOn) const;  ///< of the behaviors that are on, or off
};

/// What a document holds of a material that is there: `held` is what ReadMaterial answers, and `given` the
/// same in the shape of a card, which outlives the answer.
StoredMaterial HeldMaterial(const Material& given, Material held, std::size_t features);

/// Makes a material in the host's document, gives it the data and reads everything back from there. Between
/// the two no reference is held, so that reading starts from the document alone. With several fits each takes
/// the place of the one before and is read back in turn.
StoredMaterial StoreMaterial(MaterialHost& host, const Material& material,
                             const std::vector<const Block*>& fits, Findings& findings);

}  // namespace zelmat
