#pragma once

#include <string>

#include "zelmat/files/OpenFile.h"

namespace zelmat {

/// A new file beside another, whose place it takes in the end; when it does not, nothing of it stays. It is
/// locked for as long as it is written, so that what a killed program left is known from what another is
/// writing just now.
class BesideFile {
public:
    /// Removes what killed programs left beside `target`. False, and errno, when no file can be made there.
    BesideFile(std::string target, mode_t mode);
    ~BesideFile();
    BesideFile(const BesideFile&) = delete;
    BesideFile& operator=(const BesideFile&) = delete;

    explicit operator bool() const { return static_cast<bool>(file_); }
    const OpenFile& File() const { return file_; }

    /// Takes the target's place, at once and whole. False, and errno, when the system refuses.
    [[nodiscard]] bool TakePlace();

private:
    std::string target_;
    std::string path_;
    OpenFile file_;
};

}  // namespace zelmat
