#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/exchange/DeckNotes.h"
#include "zelmat/exchange/DeckUnits.h"
#include "zelmat/layups/LayupCard.h"

namespace zelmat {

/// The constants of a ply as a solid element needs them, in the units of a deck. nu12 is the strain along 2
/// that a stress along 1 causes, so that nu21 = nu12 E2/E1 is the smaller one of a fibre ply.
struct PlyNumbers {
    double e1, e2, e3, nu12, nu13, nu23, g12, g13, g23;
    bool isotropic;  ///< E and nu tell it all, exactly
    std::optional<double> density;
    std::optional<double> alpha1, alpha2;
    std::vector<std::string> assumed;  ///< names of those that nobody gave; none of an isotropic ply

    bool IsGiven(const std::string& constant) const;
};

/// Those that a card leaves out across the ply are assumed: it is the same in 2 and 3, nu23 = nu12. Strengths
/// are a note. Nothing, and a note, for a ply that lacks one in its plane or is not stable.
std::optional<PlyNumbers> PlyNumbersOf(const PlyMaterial& ply, const DeckUnits& units, DeckNotes& notes);

}  // namespace zelmat
