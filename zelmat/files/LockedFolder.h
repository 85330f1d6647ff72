#pragma once

#include <filesystem>
#include <string>

#include "zelmat/files/OpenFile.h"

namespace zelmat {

/// A new folder of the program's own that goes, with all that is in it, at the end of the scope. It is locked
/// as long as it stands, so that what a killed program left is known from what another one is using just now.
class LockedFolder {
public:
    /// In `parent`, with a name that begins with `prefix`; removes folders of such names there that killed
    /// programs of the same user left. Not there, and errno, when none can be made.
    LockedFolder(const std::filesystem::path& parent, const std::string& prefix);
    ~LockedFolder();
    LockedFolder(const LockedFolder&) = delete;
    LockedFolder& operator=(const LockedFolder&) = delete;

    bool Exists() const { return !path_.empty(); }
    const std::string& Path() const { return path_; }

private:
    std::string path_;
    OpenFile lock_;
};

}  // namespace zelmat
