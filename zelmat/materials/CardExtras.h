#pragma once

#include "platform/document/KORMemoryDocument.h"
#include "zelmat/materials/Material.h"

namespace zelmat {

/// What a card says beyond the module's data lies in features of the program's own catalog, hung on the
/// platform's material: description, class, sources, notes, blocks for information, the fits that are not
/// stored, keys that mean nothing to the program, and numbers and units as they were written. What the
/// module's data hold is not there a second time.

/// Hangs what `card` says on a material of the platform, in place of what hung there, of which only
/// what differs is written. `stored`: the fit of
/// the card that the behavior was given; null when it was given none. `held`: what the document holds of the
/// material by now, as ReadMaterial answers it; so that a value of it that the card left out can be told.
/// What hung there of a behavior that the card does not have, because it is switched off, stays. False when
/// the document does not know the features' late types, or the material is none of the platform.
[[nodiscard]] bool WriteCardExtras(KORMemoryDocument& document, KORISpecObject* material,
                                   const Material& card, const Block* stored, const Material& held);

/// Adds what hangs on a material of the platform to what was read of its behaviors, switched-off ones left
/// out and the hyperelastic one among the fits. What nobody has changed since is then as the card had it, to
/// the digits and units written; what was changed is as the document holds it. The fit that is stored comes
/// first.
void AddCardExtras(KORISpecObject* material, Material& read);

}  // namespace zelmat
