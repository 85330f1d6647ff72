#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "zelmat/findings/Findings.h"
#include "zelmat/pictures/GnuplotScript.h"

namespace zelmat {

/// Draws every sheet with gnuplot and answers the files' bytes, in the order of the sheets. An SVG is the
/// same byte for byte with one release of gnuplot and says nothing of it; its texts hold no markup whatever
/// the pictures' do. `progress` is told how many sheets are drawn, from time to time. Nothing, and a finding,
/// when gnuplot is missing or fails.
std::optional<std::vector<std::string>> DrawSheets(
    const std::vector<PictureSheet>& sheets, PictureFormat format, Findings& findings,
    const std::function<void(std::size_t drawn)>& progress = [](std::size_t) {});

}  // namespace zelmat
