#include "zelmat/pictures/PictureDrawing.h"

#include <algorithm>
#include <string_view>

#include "zelmat/files/ChildProgram.h"
#include "zelmat/text/ReplaceAll.h"
#include "zelmat/text/XmlText.h"

namespace zelmat {

namespace {

constexpr const char* kScript = "pictures.gp";
constexpr std::size_t kSheetsARun = 64;
constexpr std::size_t kLargestPicture = std::size_t{256} << 20U;

/// Puts something else in the place of what begins and ends like that, where it stands first.
void ReplaceBetween(std::string& text, std::string_view begin, std::string_view end,
                    const std::string& with) {
    const std::size_t from = text.find(begin);
    const std::size_t to = from == std::string::npos ? from : text.find(end, from);
    if (to == std::string::npos) return;
    text.replace(from, to + end.size() - from, with);
}

/// The group of a series comes with a number as its title, which would be read aloud.
std::string WithoutTitle(std::string_view line) {
    std::string kept(line);
    if (line.find("<g id=\"gnuplot_plot_") != std::string_view::npos) {
        ReplaceBetween(kept, "<title>", "</title>", "");
    }
    return kept;
}

/// gnuplot writes a group at every change of the pen, most of them with nothing in it.
std::string WithoutEmptyGroups(std::string_view svg) {
    std::string kept;
    kept.reserve(svg.size());
    for (std::size_t at = 0; at < svg.size();) {
        const std::size_t end = std::min(svg.find('\n', at), svg.size() - 1) + 1;
        const std::string_view line = svg.substr(at, end - at);
        const bool empty =
            line.starts_with("<g ") && line.ends_with(">\n") && svg.substr(end).starts_with("</g>\n");
        if (!empty) kept += WithoutTitle(line);
        at = empty ? end + std::string_view("</g>\n").size() : end;
    }
    return kept;
}

/// gnuplot's own title and the line with its release give way to what the picture shows.
std::string Cleaned(std::string svg, const PictureSheet& sheet) {
    std::string description;
    for (const Picture* picture : sheet.pictures) {
        description += (description.empty() ? "" : " ") + Description(*picture);
    }
    ReplaceBetween(svg, "<title>", "</title>", "<title>" + XmlText(description) + "</title>");
    ReplaceBetween(svg, "<desc>", "</desc>\n", "");
    svg = WithoutEmptyGroups(svg);
    // gnuplot writes the weight of a font as part of its name.
    ReplaceAll(svg, "font-family=\"sans-serif:Bold\"", "font-family=\"sans-serif\" font-weight=\"bold\"");
    return svg;
}

bool Draw(const std::vector<PictureSheet>& sheets, PictureFormat format, std::vector<std::string>& drawn,
          Findings& findings) {
    const ScratchFolder folder(findings);
    if (!folder.Exists() || !folder.Write(kScript, GnuplotScript(sheets, format), findings)) return false;
    // Without the user's own settings: a picture depends on its data alone.
    const ChildProgram gnuplot{.name = "gnuplot",
                               .arguments = {"-d", kScript},
                               .needed = "drawing",
                               .package = "gnuplot-nox",
                               .without = {"GNU"},  // GNUTERM, GNUPLOT_FONTPATH, ...
                               .with = {"LC_ALL=C.UTF-8", "TZ=UTC0"}};
    if (!RunChild(gnuplot, folder, findings)) return false;
    for (const PictureSheet& sheet : sheets) {
        std::string bytes = folder.Read(sheet.file, kLargestPicture);
        if (bytes.empty()) {
            findings.Add({FindingKind::UNREADABLE,
                          {"gnuplot", 0},
                          "program-failed",
                          "the program made no picture " + sheet.file,
                          {}});
            return false;
        }
        const bool svg = format == PictureFormat::SVG;
        drawn.push_back(svg ? Cleaned(std::move(bytes), sheet) : std::move(bytes));
    }
    return true;
}

}  // namespace

std::optional<std::vector<std::string>> DrawSheets(const std::vector<PictureSheet>& sheets,
                                                   PictureFormat format, Findings& findings,
                                                   const std::function<void(std::size_t drawn)>& progress) {
    std::vector<std::string> drawn;
    for (std::size_t from = 0; from < sheets.size(); from += kSheetsARun) {
        const auto first = sheets.begin() + static_cast<std::ptrdiff_t>(from);
        const std::size_t count = std::min(kSheetsARun, sheets.size() - from);
        if (!Draw({first, first + static_cast<std::ptrdiff_t>(count)}, format, drawn, findings))
            return std::nullopt;
        progress(drawn.size());
    }
    return drawn;
}

}  // namespace zelmat
