#pragma once

#include <optional>
#include <string>

#include "zelmat/exchange/DeckNotes.h"
#include "zelmat/exchange/DeckUnits.h"
#include "zelmat/layups/LayupCard.h"

namespace zelmat {

/// The constants of a ply as a solid element needs them, in the units of a deck.
struct PlyNumbers {
    double e1, e2, e3, nu12, nu13, nu23, g12, g13, g23;
    bool isotropic;  ///< E and nu tell it all
    std::optional<double> density;
    std::optional<double> alpha1, alpha2;
};

/// Those that a card leaves out across the ply are assumed: it is the same in 2 and 3, nu23 = nu12. That is a
/// note. Nothing, and a note, for a ply that lacks one in its plane or is not stable.
std::optional<PlyNumbers> PlyNumbersOf(const PlyMaterial& ply, const DeckUnits& units, DeckNotes& notes);

}  // namespace zelmat
