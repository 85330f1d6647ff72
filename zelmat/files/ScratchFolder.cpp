#include "zelmat/files/ScratchFolder.h"

#include <stdlib.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace zelmat {

namespace {

void Report(const std::string& path, std::string text, Findings& findings) {
    const std::string reason = std::generic_category().message(errno);
    findings.Add({FindingKind::UNREADABLE, {path, 0}, "not-written", std::move(text), {reason}});
}

}  // namespace

ScratchFolder::ScratchFolder(Findings& findings) {
    std::error_code none;
    const auto parent = std::filesystem::temp_directory_path(none);
    std::string wanted = (none ? std::filesystem::path("/tmp") : parent) / "zelmat-XXXXXX";
    if (::mkdtemp(wanted.data())) {
        path_ = wanted;
    } else {
        Report(wanted, "a folder for intermediate files cannot be made", findings);
    }
}

ScratchFolder::~ScratchFolder() {
    std::error_code ignored;
    if (Exists()) std::filesystem::remove_all(path_, ignored);
}

bool ScratchFolder::Write(const std::string& name, const std::string& text, Findings& findings) const {
    const std::string path = path_ + "/" + name;
    errno = 0;
    std::ofstream file(path, std::ios::binary);
    file << text;
    file.close();
    if (!file) Report(path, "an intermediate file cannot be written", findings);
    return static_cast<bool>(file);
}

std::string ScratchFolder::Read(const std::string& name, std::size_t most) const {
    std::ifstream file(path_ + "/" + name, std::ios::binary);
    std::string text;
    std::error_code none;
    const auto size = std::filesystem::file_size(path_ + "/" + name, none);
    if (none || !file) return text;
    text.resize(std::min<std::size_t>(most, size));
    file.read(text.data(), static_cast<std::streamsize>(text.size()));
    text.resize(static_cast<std::size_t>(file.gcount()));
    return text;
}

}  // namespace zelmat
