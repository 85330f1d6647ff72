#include "zelmat/files/ScratchFolder.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace zelmat {

namespace {

constexpr const char* kPrefix = "zelmat-scratch-";

std::filesystem::path Parent() {
    std::error_code none;
    const auto parent = std::filesystem::temp_directory_path(none);
    return none ? std::filesystem::path("/tmp") : parent;
}

void Report(const std::string& path, std::string text, Findings& findings) {
    const std::string reason = std::generic_category().message(errno);
    findings.Add({FindingKind::UNREADABLE, {path, 0}, "not-written", std::move(text), {reason}});
}

}  // namespace

ScratchFolder::ScratchFolder(Findings& findings) : folder_(Parent(), kPrefix) {
    if (Exists()) return;
    Report(Parent() / kPrefix, "a folder for intermediate files cannot be made", findings);
}

bool ScratchFolder::Write(const std::string& name, const std::string& text, Findings& findings) const {
    const std::string path = Path() + "/" + name;
    errno = 0;
    std::ofstream file(path, std::ios::binary);
    file << text;
    file.close();
    if (!file) Report(path, "an intermediate file cannot be written", findings);
    return static_cast<bool>(file);
}

std::string ScratchFolder::Read(const std::string& name, std::size_t most) const {
    std::string text;
    std::error_code none;
    // A pipe would be waited for.
    if (!std::filesystem::is_regular_file(Path() + "/" + name, none)) return text;
    std::ifstream file(Path() + "/" + name, std::ios::binary);
    const auto size = std::filesystem::file_size(Path() + "/" + name, none);
    if (none || !file) return text;
    text.resize(std::min<std::size_t>(most, size));
    file.read(text.data(), static_cast<std::streamsize>(text.size()));
    text.resize(static_cast<std::size_t>(file.gcount()));
    return text;
}

}  // namespace zelmat
