#pragma once

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
/// one that is wanted, of rival laws the first. What is left out or brought into that meaning is a note.
std::vector<Block> CarriedBlocks(const DeckForm& form, const Material& material, const FitChoice& fit,
                                 DeckNotes& notes, Findings& findings);

/// The deck's files: one without a name, or those of a folder. Everything that is lost or changed is a
/// finding and a comment in the deck. Nothing, and an error, when a material or a layup has nothing that the
/// form carries: a deck is whole or not there.
std::vector<DeckFile> ExportDeck(const DeckForm& form, const DeckContent& content, const DeckUnits& units,
                                 Findings& findings);

}  // namespace zelmat
