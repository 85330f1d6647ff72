#pragma once

#include <string>
#include <vector>

#include "zelmat/exchange/DeckUnits.h"
#include "zelmat/findings/Findings.h"
#include "zelmat/materials/Material.h"

namespace zelmat {

/// The materials of a CalculiX deck, in the order of its *MATERIAL cards, with the numbers as they stand
/// there and the given units beside them. Keywords that describe no material are passed over; each is named
/// once, as a note. What a material card says and no behavior holds is a warning with its line. None, and an
/// error with its line, where a material card cannot be read.
std::vector<Material> ReadCalculix(const std::string& path, const DeckUnits& units, Findings& findings);

}  // namespace zelmat
