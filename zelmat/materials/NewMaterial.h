#pragma once

#include "framework/KORStatus.h"
#include "platform/document/KORMemoryDocument.h"
#include "zelmat/findings/Findings.h"
#include "zelmat/materials/Material.h"

namespace zelmat {

/// A new material of the platform, of that visible name, with analysis data hung on it that the module's
/// factory makes. Null, and `status` the factory's, when those cannot be made.
KORVar<KORFeature> NewMaterial(KORMemoryDocument& document, const std::string& name, HRESULT& status);

/// Makes a material of a card in a document: its behaviors with the card's blocks and this fit of it (null:
/// none), and what the card says beyond them. Null when the material cannot be made at all. Findings tell
/// what was not stored as given; the material is there all the same, for the caller's step to take back.
KORVar<KORFeature> AddMaterial(KORMemoryDocument& document, const Material& card, const Block* fit,
                               Findings& findings);

}  // namespace zelmat
