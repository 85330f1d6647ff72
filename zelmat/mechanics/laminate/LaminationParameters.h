#pragma once

#include <array>

#include "zelmat/mechanics/laminate/Laminate.h"

namespace zelmat::mechanics {

/// The part of the stacking in a laminate's stiffness, without units: the means over the thickness of cos 2t,
/// sin 2t, cos 4t, sin 4t, t the angle of the fibre.
struct LaminationParameters {
    std::array<double, 4> membrane;  ///< 1/h int ... dz
    std::array<double, 4> coupling;  ///< 4/h^2 int ... z dz
    std::array<double, 4> bending;   ///< 12/h^3 int ... z^2 dz
};

/// Refused where LaminateFault finds one, and for more than one ply material: the parameters would say
/// nothing. S. W. Tsai, H. T. Hahn, Introduction to Composite Materials, 1980.
Outcome<LaminationParameters> LaminationParametersOf(const Laminate& laminate);

}  // namespace zelmat::mechanics
