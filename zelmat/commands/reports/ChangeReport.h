#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <ostream>
#include <string>

#include "zelmat/commands/frame/Command.h"
#include "zelmat/documents/DocumentToChange.h"
#include "zelmat/materials/DocumentMaterials.h"

namespace zelmat {

/// What became of a change of a document.
struct SavedChange {
    std::string document;                ///< its path
    bool changed = false;                ///< false: there was nothing to be changed
    std::optional<KORHistoryStep> step;  ///< that undo takes back; also nothing where no history is kept
};

/// Saves the step that was committed last. Nothing, and a finding, when it cannot be saved.
std::optional<SavedChange> SaveChange(DocumentToChange& document, CommandContext& context);

/// "step 3: Set density of Steel"; or that there is no such step, and why.
std::string ChangeText(const SavedChange& change);
void PrintChange(std::ostream& out, const SavedChange& change);

/// Adds "document", "changed" and "step" to what a command tells; null, false and null when nothing was
/// saved.
void AddChange(nlohmann::ordered_json& json, const std::optional<SavedChange>& change);

/// The material of a document that the user means; a finding when it is none alone.
std::optional<DocumentMaterial> ChosenMaterial(KORMemoryDocument& document, const std::string& wanted,
                                               const std::string& file, Findings& findings);

/// Whether something can be called that; a usage finding of the command `place` when not.
bool IsNewName(const std::string& name, const std::string& place, Findings& findings);

/// Whether a document has a material of that very name; then a finding says that it is taken.
bool IsTaken(KORMemoryDocument& document, const std::string& name, const std::string& file,
             Findings& findings);

}  // namespace zelmat
