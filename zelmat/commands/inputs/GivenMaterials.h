#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "zelmat/cards/ReadCard.h"
#include "zelmat/commands/frame/Command.h"
#include "zelmat/documents/DocumentToRead.h"
#include "zelmat/materials/Material.h"

namespace zelmat {

class Arguments;

/// A file that a command was given, opened as what it is: a document, or else the text of a card. Neither,
/// and findings, when it cannot be read.
struct GivenFile {
    std::unique_ptr<DocumentToRead> document;
    std::optional<std::string> text;
};
GivenFile OpenGiven(const std::string& path, const CommonOptions& options, Findings& findings);

/// The materials of a card's text; a finding, and none, when it is a card of another kind.
std::vector<Material> CardsOfText(std::string text, const std::string& path, Findings& findings,
                                  const CardReading& how = {});

/// The materials in what a command was given: a card in any of its forms, a document, or "-" for a card or a
/// document in its text form on standard input; told by the content. Of a card they are as the card gives
/// them, with all that it says beyond the module's data, and numbers as they were written; ToStoredMeaning
/// brings a block into the meaning that documents have. Of a document they are as read from it, in the same
/// shape: behaviors that are switched off are left out, and the hyperelastic one is among the fits. The file
/// stays as it is. None, or those without a mistake, and findings, when not all can be read.
std::vector<Material> ReadGivenMaterials(const std::string& path, const CommonOptions& options,
                                         Findings& findings, const CardReading& how = {});

/// The same of a file that OpenGiven opened.
std::vector<Material> MaterialsIn(GivenFile given, const std::string& path, Findings& findings,
                                  const CardReading& how = {});

/// `CARD|DOC [MATERIAL]` on the command line of a command that works with one material, or with all.
class GivenMaterials {
public:
    void Declare(Arguments& line);

    /// In the place of Declare, for a command that takes its arguments apart itself.
    void Set(std::string path, std::string material, const CardReading& how) {
        path_ = std::move(path);
        material_ = std::move(material);
        how_ = how;
    }

    const std::string& Path() const { return path_; }
    const std::string& Wanted() const { return material_; }  ///< MATERIAL; empty: not said

    const CardReading& How() const { return how_; }

    /// The one of these that MATERIAL names; none, and a finding, when it is none alone.
    std::vector<Material> Chosen(std::vector<Material> materials, Findings& findings) const;

    /// The same; with MATERIAL left out there has to be one alone.
    std::optional<Material> OneOf(std::vector<Material> materials, Findings& findings) const;

    /// For a command whose line ends with an argument of its own: with MATERIAL left out, the parser has
    /// taken that argument for MATERIAL. Gives it back.
    std::string TakeMaterial() { return std::exchange(material_, {}); }

    /// The one that MATERIAL names; all where it is left out.
    std::vector<Material> ReadAll(CommandContext& context) const;

    /// The one that MATERIAL names; where it is left out there has to be one alone. Nothing, and a finding,
    /// when something cannot be read or it is not there.
    std::optional<Material> ReadOne(CommandContext& context) const;

private:
    std::string path_;
    CardReading how_;
    std::string material_;  // empty: not said
};

}  // namespace zelmat
