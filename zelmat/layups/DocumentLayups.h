#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/document/KORMemoryDocument.h"
#include "zelmat/layups/StoredLayup.h"

namespace zelmat {

/// A layup of a document.
struct DocumentLayup {
    KORISpecObject_var feature;
    std::string name;  ///< its visible name
};

/// A layer to be made: what it is of lies in the same document.
struct NewLayer {
    KORISpecObject_var material;  ///< null: none
    double thickness = 0.0;       ///< m
    double angle = 0.0;           ///< deg
};

/// The visible name of a layup or of a material; empty when it has none.
std::string VisibleName(const KORISpecObject_var& feature);

/// The layups that lie in the document, in the order in which they were made.
std::vector<DocumentLayup> LayupsOf(KORMemoryDocument& document);

/// What the document holds of it, layer by layer. Nothing when a layer cannot be read.
std::optional<StoredLayup> ReadLayup(const KORISpecObject_var& layup);

/// Makes a layup without layers, by the module's factory; in an analysis model, which is made if there is
/// none. Null, and `status` the factory's, when that fails. The factory chooses the name where it is empty.
KORISpecObject_var NewLayup(KORMemoryDocument& document, const std::string& name, HRESULT& status);

/// Gives a layup new layers, the bottom one first, in place of those that it has; the status of what fails.
HRESULT SetLayers(KORMemoryDocument& document, const KORISpecObject_var& layup,
                  const std::vector<NewLayer>& layers);

/// Takes a layup out of its set and out of the document, with its layers and with what is
/// kept of its card.
void RemoveLayup(KORMemoryDocument& document, const KORISpecObject_var& layup);

}  // namespace zelmat
