#pragma once

#include <set>
#include <string>
#include <vector>

#include "zelmat/cards/FitChoice.h"
#include "zelmat/exchange/DeckForm.h"
#include "zelmat/findings/Findings.h"

namespace zelmat {

/// What goes into one deck.
struct DeckContent {
    std::vector<Material> materials;
    std::vector<LayupCard> layups;
    FitChoice fit;  ///< which of a material's hyperelastic fits
};

/// What a form carries of a material, in the stored meaning: its blocks that are on, of alternative fits the
/// one that is wanted, of rival laws the first; its ply constants where none of these is a law of stress.
/// What is left out or brought into that meaning is a note. Its name in the deck goes into `taken`.
DeckMaterial MakeDeckMaterial(const DeckForm& form, const Material& material, const FitChoice& fit,
                              std::set<std::string>& taken, int number, DeckNotes& notes, Findings& findings);

/// A note for each behavior that the writer, which has been, did not lose and the form has in another shape.
void TellConversions(const DeckForm& form, const DeckMaterial& deck, DeckNotes& notes);

/// A warning where the units do not go together.
void TellInconsistentUnits(const DeckUnits& units, Findings& findings);

/// The deck's files: one without a name, or those of a folder. Everything that is lost or changed is a
/// finding and a comment in the deck. Nothing, and an error, when a material or a layup has nothing that the
/// form carries: a deck is whole or not there. A material with nothing that is a ply of one of the layups
/// stands there as that.
std::vector<DeckFile> ExportDeck(const DeckForm& form, const DeckContent& content, const DeckUnits& units,
                                 Findings& findings);

}  // namespace zelmat
