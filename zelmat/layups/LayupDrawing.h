#pragma once

#include <set>
#include <string>

#include "zelmat/layups/StoredLayup.h"
#include "zelmat/quantities/UnitChoice.h"

namespace zelmat {

/// What the picture of a layup says besides what the document holds.
struct LayupPicture {
    std::string title;
    std::set<std::string> isotropic;  ///< the materials that have no fibres
    UnitChoice units = UnitChoice::ForText();
};

/// A layup as an SVG picture: a section through the stack with the bottom layer at the bottom, seen along y.
/// Each layer is a box of its own, coloured by its material and hatched in the direction of its fibres as
/// seen from above, with number, angle and thickness beside it; axes, the z of the interfaces, the middle
/// plane and a legend of materials and angles. It is to scale where every layer can be seen like that, and
/// says so where not. The same layup gives the same bytes; whatever names hold, it is well-formed XML.
std::string LayupDrawing(const StoredLayup& layup, const LayupPicture& picture);

}  // namespace zelmat
