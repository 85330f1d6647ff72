#include "zelmat/files/OpenFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <utility>

namespace zelmat {

OpenFile::OpenFile(const std::string& path, int flags, mode_t mode) {
    // A path ends at its first NUL for the system: one that has more to it names another file.
    if (path.find('\0') != std::string::npos) {
        errno = EINVAL;
        return;
    }
    do {
        file_ = ::open(path.c_str(), flags | O_CLOEXEC, mode);
    } while (file_ < 0 && errno == EINTR);
}

OpenFile::~OpenFile() {
    if (file_ >= 0) ::close(file_);
}

OpenFile::OpenFile(OpenFile&& other) noexcept : file_(std::exchange(other.file_, -1)) {}

OpenFile& OpenFile::operator=(OpenFile&& other) noexcept {
    std::swap(file_, other.file_);
    return *this;
}

bool OpenFile::Write(std::string_view text) const {
    while (!text.empty()) {
        const ssize_t written = ::write(file_, text.data(), text.size());
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) return false;
        text.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

std::optional<std::string> OpenFile::ReadAll() const {
    std::string text;
    std::array<char, 1 << 16> part{};
    while (true) {
        const ssize_t count = ::read(file_, part.data(), part.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return std::nullopt;
        if (count == 0) return text;
        text.append(part.data(), static_cast<std::size_t>(count));
    }
}

bool OpenFile::Sync() const {
    return ::fsync(file_) == 0;
}

bool OpenFile::Close() {
    return ::close(std::exchange(file_, -1)) == 0;
}

std::optional<struct stat> OpenFile::State() const {
    struct stat state {};
    return ::fstat(file_, &state) == 0 ? std::optional(state) : std::nullopt;
}

}  // namespace zelmat
