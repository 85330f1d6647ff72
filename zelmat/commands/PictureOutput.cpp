#include "zelmat/commands/PictureOutput.h"

#include <algorithm>
#include <cctype>
#include <filesystem>

#include "zelmat/pictures/PictureDrawing.h"
#include "zelmat/pictures/SvgColumn.h"
#include "zelmat/pictures/SvgConversion.h"
#include "zelmat/text/CountText.h"

namespace zelmat {

namespace {

namespace fs = std::filesystem;

std::string Lower(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char symbol) { return static_cast<char>(std::tolower(symbol)); });
    return text;
}

bool MakeFolder(const std::string& path, Findings& findings) {
    std::error_code problem;
    fs::create_directories(path, problem);
    std::error_code none;
    if (!problem || fs::is_directory(path, none)) return true;
    findings.Add({FindingKind::UNREADABLE,
                  {path, 0},
                  "not-written",
                  "the folder cannot be made",
                  {problem.message()}});
    return false;
}

/// Gnuplot's file of several pictures grows; beyond this a folder does better.
constexpr std::size_t kMostOnASheet = 16;

bool FitsAFile(const PicturesToWrite& pictures, const PictureOutput& output, Findings& findings) {
    const std::size_t count = pictures.drawn.size() + pictures.ready.size();
    if (output.isFolder || count <= kMostOnASheet) return true;
    findings.Add({FindingKind::USAGE,
                  {"--output", 0},
                  "too-many-pictures",
                  "one file does not hold " + CountText(count, "picture"),
                  {"name a folder, or a --block"}});
    return false;
}

/// The files that gnuplot makes. Beside a picture that is there already they are SVGs, which are joined; each
/// with one picture where each is a file or a page.
std::vector<PictureSheet> SheetsOf(const PicturesToWrite& pictures, const PictureOutput& output,
                                   PictureFormat format) {
    std::vector<PictureSheet> sheets;
    const bool joined = !output.isFolder && (format == output.format || output.format != PictureFormat::PDF);
    for (const Picture& picture : pictures.drawn) {
        if (sheets.empty() || !joined) sheets.push_back({.file = picture.name + Ending(format)});
        sheets.back().pictures.push_back(&picture);
    }
    return sheets;
}

std::optional<std::string> Joined(std::vector<std::string> svgs, PictureFormat format, Findings& findings) {
    if (format == PictureFormat::PDF) return ConvertedSvgs(svgs, format, findings);
    std::string svg = svgs.size() == 1 ? std::move(svgs.front()) : SvgColumn(svgs);
    if (format == PictureFormat::SVG) return svg;
    return ConvertedSvgs({std::move(svg)}, format, findings);
}

/// A file to be written, by its path.
struct NewFile {
    std::string path;
    std::string bytes;
};

/// One for every picture of a folder, else the one that holds them all. `drawn`: the sheets as gnuplot made
/// them.
std::vector<NewFile> FilesOf(const PicturesToWrite& pictures, const PictureOutput& output,
                             const std::vector<PictureSheet>& sheets, std::vector<std::string> drawn,
                             Findings& findings) {
    std::vector<NewFile> files;
    if (output.isFolder) {
        const fs::path folder(output.path);
        for (std::size_t i = 0; i < sheets.size(); ++i)
            files.push_back({(folder / sheets[i].file).string(), std::move(drawn[i])});
        for (const ReadyPicture& ready : pictures.ready)
            files.push_back({(folder / (ready.name + Ending(output.format))).string(), ready.svg});
        return files;
    }
    if (pictures.ready.empty()) {
        files.push_back({output.path, std::move(drawn.front())});
        return files;
    }
    std::vector<std::string> svgs;
    for (const ReadyPicture& ready : pictures.ready) svgs.push_back(ready.svg);
    svgs.insert(svgs.end(), drawn.begin(), drawn.end());
    if (auto joined = Joined(std::move(svgs), output.format, findings))
        files.push_back({output.path, std::move(*joined)});
    return files;
}

}  // namespace

std::optional<PictureOutput> PictureOutputOf(const std::string& path, Findings& findings) {
    const auto refuse = [&](const char* code, std::string text) {
        findings.Add({FindingKind::USAGE,
                      {"--output", 0},
                      code,
                      std::move(text),
                      {"a file that ends in .svg, .pdf or .png, or a folder"}});
        return std::nullopt;
    };
    if (path.empty()) return refuse("missing-option", "it is not said where the pictures go");
    if (path == "-") return PictureOutput{path, false, PictureFormat::SVG};
    std::error_code none;
    const std::string ending = Lower(fs::path(path).extension().string());
    if (fs::is_directory(path, none) || path.ends_with('/') || ending.empty())
        return PictureOutput{path, true};
    for (const auto format : {PictureFormat::SVG, PictureFormat::PDF, PictureFormat::PNG}) {
        if (ending == Ending(format)) return PictureOutput{path, false, format};
    }
    return refuse("wrong-ending", "there is no form of pictures that ends in " + ending);
}

std::vector<WrittenFile> WritePictures(const PicturesToWrite& pictures, const PictureOutput& output,
                                       bool keepScript, const std::vector<std::string>& inputs,
                                       Findings& findings) {
    std::vector<WrittenFile> written;
    if (!FitsAFile(pictures, output, findings)) return written;
    const PictureFormat format = pictures.ready.empty() ? output.format : PictureFormat::SVG;
    const auto sheets = SheetsOf(pictures, output, format);
    auto drawn = DrawSheets(sheets, format, findings);
    if (!drawn) return written;
    auto files = FilesOf(pictures, output, sheets, std::move(*drawn), findings);
    if (keepScript && !sheets.empty()) {
        const fs::path script = output.isFolder ? fs::path(output.path) / "pictures.gp"
                                                : fs::path(output.path).replace_extension(".gp");
        files.push_back({script.string(), GnuplotScript(sheets, format)});
    }
    if (findings.HasErrors()) return written;
    // Made last: where nothing can be drawn, no folder is left.
    if (output.isFolder && !MakeFolder(output.path, findings)) return written;
    for (const NewFile& file : files) {
        auto one = WriteOutputFile(file.path, file.bytes, inputs, findings);
        if (!one) break;
        written.push_back(std::move(*one));
    }
    return written;
}

}  // namespace zelmat
