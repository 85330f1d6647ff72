#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/commands/frame/Command.h"
#include "zelmat/files/OutputFile.h"
#include "zelmat/pictures/GnuplotScript.h"

namespace zelmat {

/// Where pictures go: one file, of the form that its ending says, or a folder that gets an SVG of each.
struct PictureOutput {
    std::string path;
    bool isFolder = false;
    PictureFormat format = PictureFormat::SVG;
};

/// A folder is one that there is, or a path that ends in "/" or has no ending. "-" is an SVG on standard
/// output. Nothing, and a finding, for no path and for an ending that no picture has.
std::optional<PictureOutput> PictureOutputOf(const std::string& path, Findings& findings);

/// An SVG that needs no gnuplot.
struct ReadyPicture {
    std::string name;
    std::string svg;
};

/// What is to be drawn.
struct PicturesToWrite {
    std::vector<Picture> drawn;
    std::vector<ReadyPicture> ready;
};

/// Draws and writes them all; `inputs`: files that were read, which an output keeps a copy of. With
/// `keepScript` the script of gnuplot, which holds the data, stands beside them: FILE.gp, DIR/pictures.gp.
/// What was written so far, and findings, when something fails.
std::vector<WrittenFile> WritePictures(const PicturesToWrite& pictures, const PictureOutput& output,
                                       bool keepScript, const std::vector<std::string>& inputs,
                                       Findings& findings);

}  // namespace zelmat
