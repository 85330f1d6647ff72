#pragma once

#include <string>

#include "zelmat/findings/Findings.h"
#include "zelmat/materials/Material.h"

namespace zelmat {

/// Which of a card's hyperelastic fits the user wants. Both may be empty.
struct FitChoice {
    std::string model;    ///< keyword, as on the card
    std::string variant;  ///< any part of the fit's variant

    bool IsMade() const { return !model.empty() || !variant.empty(); }
};

/// The first fit that the choice fits; without a choice the first. Null when the card has none; that is a
/// finding only if the user asked for one.
const Block* ChooseFit(const Material& material, const FitChoice& choice, Findings& findings);

/// "MOONEY_RIVLIN (fit to the uniaxial test)"
std::string FitName(const Block& fit);

}  // namespace zelmat
