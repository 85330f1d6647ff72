#include "zelmat/pictures/SvgConversion.h"

#include "zelmat/files/ChildProgram.h"

namespace zelmat {

std::optional<std::string> ConvertedSvgs(const std::vector<std::string>& svgs, PictureFormat format,
                                         Findings& findings) {
    constexpr std::size_t kLargest = std::size_t{256} << 20U;
    const ScratchFolder folder(findings);
    if (!folder.Exists()) return std::nullopt;
    const bool pdf = format == PictureFormat::PDF;
    const std::string made = std::string("made") + Ending(format);
    ChildProgram converter{.name = "rsvg-convert",
                           .arguments = {"--unlimited", "--accept-language=en", "--output=" + made,
                                         pdf ? "--format=pdf" : "--format=png"},
                           .needed = "a picture of a stack as PDF or PNG",
                           .package = "librsvg2-bin",
                           .with = {"LC_ALL=C.UTF-8", "TZ=UTC0"}};
    if (!pdf) converter.arguments.emplace_back("--zoom=2");
    for (const std::string& svg : svgs) {
        const std::string name = "p" + std::to_string(converter.arguments.size()) + ".svg";
        if (!folder.Write(name, svg, findings)) return std::nullopt;
        converter.arguments.push_back(name);
    }
    if (!RunChild(converter, folder, findings)) return std::nullopt;
    std::string bytes = folder.Read(made, kLargest);
    if (!bytes.empty()) return bytes;
    findings.Add(
        {FindingKind::UNREADABLE, {converter.name, 0}, "program-failed", "the program made no picture", {}});
    return std::nullopt;
}

}  // namespace zelmat
