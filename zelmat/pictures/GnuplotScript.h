#pragma once

#include <string>
#include <vector>

#include "zelmat/pictures/Picture.h"

namespace zelmat {

enum class PictureFormat { SVG, PDF, PNG };

/// ".svg", ".pdf", ".png"
const char* Ending(PictureFormat format);

/// A file that a script makes, and what is on it: one picture, or several below each other (of a PDF: one a
/// page).
struct PictureSheet {
    std::string file;                           ///< its name, of plain characters
    std::vector<const Picture*> pictures = {};  ///< not owned
};

/// A script for gnuplot 5.4 that holds the data, too, and draws these files in its folder.
std::string GnuplotScript(const std::vector<PictureSheet>& sheets, PictureFormat format);

}  // namespace zelmat
