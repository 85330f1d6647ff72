#include "zelmat/files/WholeFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <string_view>

namespace zelmat {

namespace {

bool WriteAll(int file, std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = ::write(file, text.data(), text.size());
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) return false;
        text.remove_prefix(static_cast<std::size_t>(written));
    }
    return ::fsync(file) == 0;
}

}  // namespace

bool WriteWholeFile(const std::string& path, const std::string& text, std::string& reason) {
    constexpr mode_t kReadableByAll = 0666;  // less what the user's mask takes away
    const std::string beside = path + ".part-" + std::to_string(::getpid());
    const int file = ::open(beside.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kReadableByAll);
    if (file < 0) {
        reason = std::strerror(errno);
        return false;
    }
    const bool written = WriteAll(file, text);
    if (!written) reason = std::strerror(errno);
    ::close(file);
    if (written && std::rename(beside.c_str(), path.c_str()) == 0) return true;
    if (written) reason = std::strerror(errno);
    ::unlink(beside.c_str());
    return false;
}

}  // namespace zelmat
