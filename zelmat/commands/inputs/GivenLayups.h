#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/commands/frame/Command.h"
#include "zelmat/documents/DocumentToRead.h"
#include "zelmat/layups/DocumentLayups.h"
#include "zelmat/layups/LayupCard.h"
#include "zelmat/properties/PlyOfMaterial.h"

namespace zelmat {

/// The layup of a document that the user means, as ChooseMaterial says; where nothing is said there has to be
/// one alone. Nothing, and a finding about `file`, otherwise.
std::optional<DocumentLayup> ChosenLayup(KORMemoryDocument& document, const std::string& wanted,
                                         const std::string& file, Findings& findings);

/// A layup of a document in the shape of a card. A ply material has the constants that the layup keeps of its
/// own card, else those of the document's material (PlyOfMaterial). Nothing, and a finding, when a layer
/// cannot be read, or the name of its material is that of several.
std::optional<LayupCard> LayupCardOf(DocumentToRead& document, const DocumentLayup& layup, Findings& findings,
                                     const PlyTemperature& at = {});

/// All of them, in the order in which they were made; those without a mistake.
std::vector<LayupCard> LayupCardsOf(DocumentToRead& document, Findings& findings);

/// A warning for each material that the layup has layers of and that the document holds no more.
void ReportRemovedMaterials(const DocumentLayup& layup, const std::string& file, Findings& findings);

/// What a command for materials and layups alike was given.
struct GivenContent {
    std::vector<Material> materials;
    std::vector<LayupCard> layups;
};

/// The materials and layups in a document, the materials of a card, or the layup of a layup card, told by the
/// content. Standard input can be read once: a layup card is not taken from there.
GivenContent ReadGiven(const std::string& path, const CommonOptions& options, Findings& findings);

/// The materials and layups of a document.
GivenContent ContentOf(DocumentToRead& document, Findings& findings);

/// Whether it is a layup card, by its content. Never standard input.
bool IsLayupCard(const std::string& path);

/// Whether an argument is meant as a stacking notation: it begins with a bracket or has no letter, and names
/// neither a file nor standard input. Any other is a path, also of what is not there.
bool IsNotation(const std::string& argument);

}  // namespace zelmat
