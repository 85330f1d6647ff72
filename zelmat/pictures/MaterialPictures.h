#pragma once

#include <string>
#include <vector>

#include "zelmat/findings/Findings.h"
#include "zelmat/materials/Material.h"
#include "zelmat/pictures/Picture.h"
#include "zelmat/quantities/UnitChoice.h"

namespace zelmat {

/// Which pictures of a material are wanted.
struct PictureWish {
    std::string block = {};  ///< by its name on the card; empty: all
    bool ranking = false;    ///< of all potentials fitted to its tests, which takes seconds
    bool oneFit = false;     ///< of several hyperelastic fits the first one's response alone
};

/// The pictures that a material has, in the order of its blocks, each with a name of its own. A block that
/// cannot be drawn is a finding; one that is switched off, or has nothing over anything, has no picture.
std::vector<Picture> MaterialPictures(const Material& material, const PictureWish& wish,
                                      const UnitChoice& units, Findings& findings);

}  // namespace zelmat
