#include "zelmat/files/BesideFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <filesystem>

namespace zelmat {

namespace {

namespace fs = std::filesystem;

/// What the names of all files beside one target begin with. Made of a hash, so that it is short whatever the
/// name.
std::string NameBeside(const fs::path& target) {
    std::uint64_t hash = 14695981039346656037U;  // FNV-1a
    for (const char c : target.filename().string()) {
        hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211U;
    }
    std::array<char, 16> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), hash, 16).ptr;
    return ".zelmat-" + std::string(digits.data(), end) + "-";
}

void RemoveLeftovers(const fs::path& folder, const std::string& name) {
    std::error_code problem;
    for (const auto& entry : fs::directory_iterator(folder, problem)) {
        if (!entry.path().filename().string().starts_with(name)) continue;
        const OpenFile left(entry.path().string(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK);
        const auto state = left ? left.State() : std::nullopt;
        const bool dead = state && S_ISREG(state->st_mode) && ::flock(left.Number(), LOCK_EX | LOCK_NB) == 0;
        if (dead) ::unlink(entry.path().c_str());
    }
}

}  // namespace

BesideFile::BesideFile(std::string target, mode_t mode) : target_(std::move(target)) {
    const fs::path folder = fs::path(target_).parent_path();
    const std::string name = NameBeside(target_);
    RemoveLeftovers(folder.empty() ? fs::path(".") : folder, name);

    constexpr int kTries = 100;
    for (int i = 0; i < kTries; ++i) {
        path_ = (folder / (name + std::to_string(::getpid()) + "-" + std::to_string(i))).string();
        file_ = OpenFile(path_, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, mode);
        if (!file_ && errno == EEXIST) continue;
        if (!file_) return;
        // Between the two calls another program may have taken it for a leftover.
        const bool taken = ::flock(file_.Number(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
        const auto state = file_.State();
        if (!taken && state && state->st_nlink == 1) return;
        file_ = OpenFile();
    }
    errno = EEXIST;
}

BesideFile::~BesideFile() {
    if (file_) ::unlink(path_.c_str());
}

bool BesideFile::TakePlace() {
    if (std::rename(path_.c_str(), target_.c_str()) != 0) return false;
    return file_.Close();
}

}  // namespace zelmat
