#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/findings/Findings.h"
#include "zelmat/pictures/GnuplotScript.h"

namespace zelmat {

/// SVGs as a PDF, each on a page of its size, or one SVG as a PNG of twice its size, through rsvg-convert.
/// Nothing, and a finding, when that is missing or fails. `format`: PDF or PNG.
std::optional<std::string> ConvertedSvgs(const std::vector<std::string>& svgs, PictureFormat format,
                                         Findings& findings);

}  // namespace zelmat
