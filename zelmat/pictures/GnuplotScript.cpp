#include "zelmat/pictures/GnuplotScript.h"

#include <algorithm>
#include <cmath>

#include "zelmat/pictures/PictureScript.h"
#include "zelmat/quantities/NumberText.h"

namespace zelmat {

namespace {

std::string Terminal(PictureFormat format, double height) {
    const auto size = [](double value) { return NumberText(std::round(value)); };
    switch (format) {
        case PictureFormat::SVG:
            return "set terminal svg size " + size(kPictureWidth) + "," + size(height) +
                   " fixed noenhanced font 'sans-serif,12' background '#ffffff'";
        case PictureFormat::PNG:
            return "set terminal pngcairo size " + size(2.0 * kPictureWidth) + "," + size(2.0 * height) +
                   " noenhanced fontscale 1.5 linewidth 2 pointscale 1.6 font 'sans-serif,12' background "
                   "'#ffffff'";
        case PictureFormat::PDF: {
            constexpr double kPixelsAnInch = 100.0;
            return "set terminal pdfcairo size " + NumberText(RoundedTo(kPictureWidth / kPixelsAnInch, 4)) +
                   "," + NumberText(RoundedTo(height / kPixelsAnInch, 4)) +
                   " noenhanced fontscale 0.72 linewidth 1 font 'sans-serif,12' background '#ffffff'";
        }
    }
    return {};
}

void AddSheet(std::string& script, const PictureSheet& sheet, std::size_t number, PictureFormat format) {
    std::vector<PictureScript> pictures;
    double whole = 0.0, tallest = 0.0;
    for (const Picture* picture : sheet.pictures) {
        const std::string data = "$p" + std::to_string(number) + "n" + std::to_string(pictures.size());
        pictures.emplace_back(*picture, data);
        whole += pictures.back().Height();
        tallest = std::max(tallest, pictures.back().Height());
    }
    const bool pages = format == PictureFormat::PDF;
    const double height = pages ? tallest : whole;
    script += Terminal(format, height) + "\nset output '" + sheet.file + "'\n";
    if (!pages && pictures.size() > 1) script += "set multiplot\n";
    double bottom = height;
    for (PictureScript& picture : pictures) {
        bottom = (pages ? height : bottom) - picture.Height();
        script += picture.Text(bottom, height);
    }
    if (!pages && pictures.size() > 1) script += "unset multiplot\n";
    script += "unset output\n\n";
}

}  // namespace

const char* Ending(PictureFormat format) {
    switch (format) {
        case PictureFormat::SVG:
            return ".svg";
        case PictureFormat::PDF:
            return ".pdf";
        case PictureFormat::PNG:
            return ".png";
    }
    return "";
}

std::string GnuplotScript(const std::vector<PictureSheet>& sheets, PictureFormat format) {
    std::string script = "# A script for gnuplot 5.4: gnuplot -d THIS_FILE\n";
    for (std::size_t i = 0; i < sheets.size(); ++i) AddSheet(script, sheets[i], i + 1, format);
    return script;
}

}  // namespace zelmat
