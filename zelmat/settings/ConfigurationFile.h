#pragma once

#include <optional>
#include <string>

#include "zelmat/findings/Findings.h"
#include "zelmat/settings/Settings.h"

namespace zelmat {

/// Where a user's settings live: zelmat/config.json in $XDG_CONFIG_HOME, or in ~/.config where that is not
/// set to an absolute path. The file is one JSON object with a text for each setting, {"units": "us"}.
class ConfigurationFile {
public:
    ConfigurationFile();

    /// Empty when the environment names no home.
    const std::string& Path() const { return path_; }
    bool Exists() const;

    /// What the file sets; nothing is set where there is no file. Nothing, and findings with file and line,
    /// when the file is there and cannot be understood as a whole: half of a user's wishes is none of them.
    std::optional<Settings> Read(Findings& findings) const;

    /// Puts the settings into the file, which is made where it is missing, with its folders. False, and a
    /// finding, when that fails; then the file is as it was.
    [[nodiscard]] bool Write(const Settings& settings, Findings& findings) const;

private:
    std::string path_;
};

}  // namespace zelmat
