#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/files/OutputFile.h"
#include "zelmat/findings/Findings.h"

namespace zelmat {

/// A file's name, without a folder, and its text.
struct NamedText {
    std::string name;
    std::string text;
};

/// Puts files into a folder, all of them or none, which is made where it is not there. Nothing, and a finding
/// that names the file and the reason, when one cannot be written: then the folder is as it was before, or is
/// not there. What else lies in it is left alone. All are written beside their places first; a regular file
/// of the same name is replaced with its mode, a symbolic link followed, and anything else refused. Signals
/// that end the program wait until that is done.
[[nodiscard]] std::optional<std::vector<WrittenFile>> WriteOutputFolder(const std::string& folder,
                                                                        const std::vector<NamedText>& files,
                                                                        Findings& findings);

}  // namespace zelmat
