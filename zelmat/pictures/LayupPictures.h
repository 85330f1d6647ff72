#pragma once

#include <string>
#include <vector>

#include "zelmat/findings/Findings.h"
#include "zelmat/layups/LayupCard.h"
#include "zelmat/layups/LayupDrawing.h"
#include "zelmat/pictures/Picture.h"

namespace zelmat {

/// The layup of a card as a picture of its stack takes it; nothing has to be stored for that.
StoredLayup LayupOf(const LayupCard& card);

/// What its picture says besides, with the materials that have no fibres.
LayupPicture StackPicture(const LayupCard& card, const UnitChoice& units);

/// The ply stresses under 100 N/mm in x and the stiffness by direction of the layup's laminate. A warning
/// where its constants do not do for that.
std::vector<Picture> LayupPictures(const LayupCard& card, const UnitChoice& units, Findings& findings);

}  // namespace zelmat
