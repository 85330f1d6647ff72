#pragma once

#include <vector>

#include "zelmat/materials/Material.h"
#include "zelmat/mechanics/fit/TestCurve.h"

namespace zelmat {

/// The measured curves that a material keeps in `test_data`, one for each mode that there is, in the order of
/// mechanics::LoadingMode: stretches and nominal stresses in Pa, every point of weight 1. Empty without any.
std::vector<mechanics::TestCurve> TestCurvesOf(const Material& material);

}  // namespace zelmat
