#pragma once

#include <string>
#include <vector>

#include "interfaces/KORISpecObject.h"
#include "platform/document/KORMemoryDocument.h"
#include "zelmat/findings/Findings.h"
#include "zelmat/materials/Material.h"

namespace zelmat {

/// A material of a document: one of the platform, or analysis data that hang on none, as in documents of
/// older releases.
struct DocumentMaterial {
    KORISpecObject_var feature;
    std::string name;  ///< its visible name, else that of its feature; not always one of its kind
};

/// The materials that lie in the document's containers, in the order in which they were made.
std::vector<DocumentMaterial> MaterialsOf(KORMemoryDocument& document);

/// A material of a document in the shape in which a card gives it: the behaviors that are switched on, and
/// the hyperelastic one among the fits. What a card says beyond the module's data is not there. `file`: the
/// document, for findings. A material of the platform without analysis data has nothing but its name. Reading
/// can create features in the document and upgrade it.
Material ReadDocumentMaterial(const DocumentMaterial& material, const std::string& file, Findings& findings);

/// The same from what ReadMaterial answered of it.
Material InShapeOfACard(const DocumentMaterial& material, Material read);

/// What ReadMaterial answers of it; a material of the platform without analysis data has nothing but its
/// name.
Material ReadHeldMaterial(const DocumentMaterial& material, const std::string& file, Findings& findings);

/// How many features the material consists of: itself, its analysis data, what else hangs on it.
std::size_t FeaturesOf(const DocumentMaterial& material);

}  // namespace zelmat
