#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/exchange/CarryRule.h"
#include "zelmat/exchange/DeckNotes.h"
#include "zelmat/exchange/DeckText.h"
#include "zelmat/exchange/DeckUnits.h"
#include "zelmat/files/OutputFolder.h"
#include "zelmat/layups/LayupCard.h"
#include "zelmat/materials/Material.h"

namespace zelmat {

/// A material as a writer gets it: what its table carries or converts, one block a behavior, in the stored
/// meaning, and no two laws for the same stress.
struct DeckMaterial {
    const Material& material;
    std::string name;  ///< in the deck
    int number;        ///< in the deck, from 1
    std::vector<Block> blocks;
    std::optional<PlyMaterial> ply = std::nullopt;  ///< constants with directions, where it has no other law

    const Block* Find(const std::string& block) const;  ///< null when it is not carried
};

/// What a deck calls a ply material.
struct DeckPly {
    std::string name;  ///< for cards of its own, which no other material of the deck has
    /// The deck's material that is the same one, with a stiffness: it needs no cards of its own.
    std::optional<std::string> material;
};

/// A layup as a writer gets it.
struct DeckLayup {
    const LayupCard& layup;
    std::string name;                     ///< in the deck
    std::vector<DeckPly> plies;           ///< its materials, in the order of the card's
    std::vector<std::string> angleNames;  ///< one a layer: names that no other angle of the deck has
};

/// A file of a deck. Its name counts only where a deck is a folder.
using DeckFile = NamedText;

/// All that tells one form of deck from the next. A new form is one file, and one line in DeckForm.cpp.
struct DeckForm {
    std::string name;   ///< as --to takes it: "calculix"
    std::string title;  ///< "CalculiX"
    bool folder = false;
    std::string comment;  ///< what begins a line of comment
    DeckNameRule names;
    std::vector<std::string> reserved = {};  ///< names that mean something to the solver, in capital letters
    std::string_view outside;                ///< what the solver does outside a table over temperature
    std::vector<CarryRule> rules;

    /// The deck's text for one material, without comments that come before it. What cannot be carried all the
    /// same is a note. No file when nothing can be.
    std::vector<DeckFile> (*write)(const DeckMaterial& material, const DeckUnits& units,
                                   DeckNotes& notes) = nullptr;
    /// The same for a layup with its plies; null for a form that has none.
    std::vector<DeckFile> (*writeLayup)(const DeckLayup& layup, const DeckUnits& units,
                                        DeckNotes& notes) = nullptr;
    /// What stands before and after all materials of a deck of one file; null: nothing.
    std::string (*before)(const DeckUnits& units) = nullptr;
    std::string (*after)() = nullptr;
};

const std::vector<DeckForm>& DeckForms();

/// Null for a form that there is not.
const DeckForm* FindDeckForm(const std::string& name);

}  // namespace zelmat
