#pragma once

#include <map>
#include <string>

#include "platform/document/KORMemoryDocument.h"
#include "zelmat/layups/LayupCard.h"
#include "zelmat/layups/StoredLayup.h"

namespace zelmat {

/// What a layup's card says beyond its name and layers lies in features of the program's own catalog, which
/// refer to the layup: description, sources, notes, the ply materials with their constants, and what the
/// program does not work with. Layers and links to materials are the layup's own and not there a second time.

/// Keeps what the card says of a layup, in place of what was kept; no feature for a card that says nothing.
/// `materials`: those of the document that the card's names stand for; for other names, the one of that name.
/// False when the document does not know the features' late types.
[[nodiscard]] bool KeepLayupCard(KORMemoryDocument& document, const KORISpecObject_var& layup,
                                 const LayupCard& card,
                                 const std::map<std::string, KORISpecObject_var>& materials);

/// The card of a layup of a document, with the layers as they are by now, and ply materials by the names that
/// they have by now. `stored`: what ReadLayup answers of it. `file`: what findings call the document.
LayupCard ReadKeptLayupCard(KORMemoryDocument& document, const KORISpecObject_var& layup,
                            const StoredLayup& stored, const std::string& file);

void RemoveKeptLayupCard(KORMemoryDocument& document, const KORISpecObject_var& layup);

}  // namespace zelmat
