#pragma once

#include <string>
#include <vector>

#include "platform/document/KORMemoryDocument.h"
#include "zelmat/materials/DocumentMaterials.h"

namespace zelmat {

/// The visible names of the layups of a document that have a layer of this material, in their order.
std::vector<std::string> LayupsThatUse(KORMemoryDocument& document, KORISpecObject* material);

/// The visible names of the materials that a layup has layers of and that were taken out of its document,
/// each once.
std::vector<std::string> RemovedMaterialsOf(const KORISpecObject_var& layup);

/// Takes a material out of the document, with the features that it consists of: its analysis data, and what
/// else hangs on it.
void RemoveMaterial(KORMemoryDocument& document, const DocumentMaterial& material);

/// A copy of a material, of that visible name; null when the document makes none.
KORISpecObject_var CopyMaterial(const DocumentMaterial& material, const std::string& name);

/// The name itself where it is free in the document, else the first of "Steel (2)", "Steel (3)", ... that is.
std::string FreeName(KORMemoryDocument& document, const std::string& name);

}  // namespace zelmat
