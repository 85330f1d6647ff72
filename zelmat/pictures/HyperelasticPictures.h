#pragma once

#include <vector>

#include "zelmat/materials/Material.h"
#include "zelmat/mechanics/Outcome.h"
#include "zelmat/pictures/Picture.h"
#include "zelmat/quantities/UnitChoice.h"

namespace zelmat {

/// What a hyperelastic fit answers: nominal stress over stretch in the three modes of stretch beside the
/// material's tests, and over the amount of shear. What is not stable by Drucker's criterion is dashed, and
/// its limit marked. Of a fit over temperature at the row next to 20 degC, which the picture names. `fit`: a
/// block in the stored meaning. Refused as HyperelasticProperty refuses.
mechanics::Outcome<std::vector<Picture>> ResponsePictures(const Material& material, const Block& fit,
                                                          const UnitChoice& units);

/// A note that says where the material's tests come from, if it does say so.
void AddTestSource(const Material& material, Picture& picture);

/// How far each fit of a material lies from its tests, the nearest first: RMS of the relative deviations.
/// Without bars where there are no tests.
Picture FitsPicture(const Material& material, const std::vector<Block>& fits, const UnitChoice& units);

/// The same of all potentials, fitted to the tests anew. Takes seconds.
Picture RankingPicture(const Material& material);

}  // namespace zelmat
