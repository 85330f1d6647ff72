#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/exchange/DeckUnits.h"
#include "zelmat/findings/Findings.h"
#include "zelmat/layups/LayupCard.h"
#include "zelmat/materials/Material.h"

namespace zelmat {

/// The composite shell section of an element set of a CalculiX deck as a layup, whose name is the set's:
/// layers from the bottom up, their angles those of the axis 1 of their orientations in the plane x-y from
/// the axis x, and ply constants those of the deck's materials. Sets are compared without regard to capitals.
/// Nothing, and an error, when there is no such section, one of its lines cannot be read, or an orientation
/// is not one of the plane x-y.
std::optional<LayupCard> ReadCalculixLayup(const std::string& path, const std::string& set,
                                           const std::vector<Material>& materials, const DeckUnits& units,
                                           Findings& findings);

}  // namespace zelmat
