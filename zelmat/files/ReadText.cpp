#include "zelmat/files/ReadText.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>

#include "zelmat/files/OpenFile.h"

namespace zelmat {

namespace {

constexpr std::size_t kMost = std::size_t{1} << 30;

/// With errno when it fails; too long a text is one byte longer than kMost.
std::optional<std::string> ReadAll(int file) {
    std::string text;
    std::array<char, 65536> piece;
    while (text.size() <= kMost) {
        const ssize_t read = ::read(file, piece.data(), piece.size());
        if (read < 0 && errno == EINTR) continue;
        if (read < 0) return std::nullopt;
        if (read == 0) break;
        text.append(piece.data(), static_cast<std::size_t>(read));
    }
    return text;
}

}  // namespace

std::string ShownPath(const std::string& path) {
    return path == "-" ? "standard input" : path;
}

std::optional<std::string> ReadText(const std::string& path, Findings& findings) {
    const auto fail = [&](const std::string& why) {
        findings.Add(
            {FindingKind::UNREADABLE, {ShownPath(path), 0}, "unreadable", "cannot be read: " + why, {}});
        return std::nullopt;
    };
    const bool standardInput = path == "-";
    const OpenFile file = standardInput ? OpenFile() : OpenFile(path, O_RDONLY);
    if (!standardInput && !file) return fail(std::strerror(errno));
    auto text = ReadAll(standardInput ? STDIN_FILENO : file.Number());
    if (!text) return fail(std::strerror(errno));
    if (text->size() > kMost) return fail("it holds more than 1 GiB");
    return text;
}

}  // namespace zelmat
