#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/cards/MeasuredCsv.h"
#include "zelmat/findings/Findings.h"
#include "zelmat/mechanics/fit/TestCurve.h"

namespace zelmat {

/// The modes of a test, for messages.
constexpr const char* kTestModes = "uniaxial, equibiaxial, planar or shear";

/// The tests of a rubber that a file of points holds, one curve for each mode, specimen and weight; SI.
/// `given`: the mode of a file that has no column for it; without it an amount of shear tells, else the tests
/// are taken as uniaxial, with a warning. None, and findings with the line, when a row is none.
std::vector<mechanics::TestCurve> MeasuredTests(const MeasuredCsv& points, const std::string& file,
                                                std::optional<mechanics::LoadingMode> given,
                                                Findings& findings);

}  // namespace zelmat
