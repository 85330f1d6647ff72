#pragma once

#include <sys/stat.h>

#include <optional>
#include <string>
#include <string_view>

namespace zelmat {

/// A file descriptor that is closed at the end of its scope. Every operation that fails leaves its reason in
/// errno.
class OpenFile {
public:
    OpenFile() = default;
    /// `flags` and `mode` as of open(2); closed in programs that are started from this one.
    OpenFile(const std::string& path, int flags, mode_t mode = 0);
    ~OpenFile();
    OpenFile(OpenFile&& other) noexcept;
    OpenFile& operator=(OpenFile&& other) noexcept;

    explicit operator bool() const { return file_ >= 0; }
    int Number() const { return file_; }

    [[nodiscard]] bool Write(std::string_view text) const;     ///< all of it
    [[nodiscard]] std::optional<std::string> ReadAll() const;  ///< from where it stands to the end
    [[nodiscard]] bool Sync() const;
    [[nodiscard]] bool Close();  ///< false when the system only now says that a write failed
    [[nodiscard]] std::optional<struct stat> State() const;

private:
    int file_ = -1;
};

}  // namespace zelmat
