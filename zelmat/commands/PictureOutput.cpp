#include "zelmat/commands/PictureOutput.h"

#include <algorithm>
#include <cctype>
#include <filesystem>

#include "zelmat/pictures/PictureDrawing.h"
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
    if (!problem || fs::is_directory(path)) return true;
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
    if (output.isFolder) return true;
    const auto refuse = [&](const std::string& text, const char* hint) {
        findings.Add({FindingKind::USAGE, {"--output", 0}, "too-many-pictures", text, {hint}});
        return false;
    };
    if (count > kMostOnASheet) {
        return refuse("one file does not hold " + CountText(count, "picture"), "name a folder, or a --block");
    }
    if (!pictures.ready.empty() && (count > 1 || output.format != PictureFormat::SVG)) {
        return refuse("the picture of a stack is an SVG of its own", "name a folder, or a --block");
    }
    return true;
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
    if (output.isFolder && !MakeFolder(output.path, findings)) return written;
    std::vector<PictureSheet> sheets;
    const std::string ending = Ending(output.format);
    for (const Picture& picture : pictures.drawn) {
        if (sheets.empty() || output.isFolder) sheets.push_back({.file = picture.name + ending});
        sheets.back().pictures.push_back(&picture);
    }
    const auto bytes = DrawSheets(sheets, output.format, findings);
    if (!bytes) return written;
    const auto write = [&](const std::string& path, const std::string& text) {
        auto file = WriteOutputFile(path, text, inputs, findings);
        if (file) written.push_back(std::move(*file));
        return file.has_value();
    };
    const auto pathOf = [&](const std::string& name) {
        return output.isFolder ? (fs::path(output.path) / name).string() : output.path;
    };
    for (std::size_t i = 0; i < sheets.size(); ++i) {
        if (!write(pathOf(sheets[i].file), (*bytes)[i])) return written;
    }
    for (const ReadyPicture& ready : pictures.ready) {
        if (!write(pathOf(ready.name + ending), ready.svg)) return written;
    }
    if (keepScript && !sheets.empty()) {
        const std::string script =
            output.isFolder ? pathOf("pictures.gp") : fs::path(output.path).replace_extension(".gp").string();
        static_cast<void>(write(script, GnuplotScript(sheets, output.format)));
    }
    return written;
}

}  // namespace zelmat
