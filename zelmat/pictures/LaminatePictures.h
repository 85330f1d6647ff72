#pragma once

#include <string>
#include <vector>

#include "zelmat/mechanics/laminate/LaminateResponse.h"
#include "zelmat/pictures/Picture.h"
#include "zelmat/quantities/UnitChoice.h"

namespace zelmat {

/// The stresses of a laminate's plies in their own axes over the height, from the bottom face to the top one.
/// `loadText`: the load in words. Laminate and load in SI. Refused as RespondTo refuses.
mechanics::Outcome<Picture> PlyStressPicture(const std::string& title, const mechanics::Laminate& laminate,
                                             const mechanics::LaminateLoad& load, const std::string& loadText,
                                             const UnitChoice& units);

/// Young's and shear modulus of the laminate as a membrane over the direction in which it is loaded, degrees
/// from x. Refused as StiffnessOf refuses.
mechanics::Outcome<Picture> StiffnessPicture(const std::string& title, const mechanics::Laminate& laminate,
                                             const UnitChoice& units);

}  // namespace zelmat
