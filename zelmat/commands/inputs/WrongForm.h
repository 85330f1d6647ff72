#pragma once

#include <optional>
#include <string>

#include "zelmat/findings/Findings.h"

namespace zelmat {

/// What a file of the house holds, told by its content.
enum class FileForm { MATERIAL_CARD, LAYUP_CARD, DOCUMENT };

/// Nothing when it is none of them.
std::optional<FileForm> FormOfText(const std::string& text);

/// For a file that a command could not read as what it expected, or hardly: when it is another form of the
/// house, puts one finding in the place of all in `findings` about that file, which says what it is and which
/// command reads it, and answers true.
bool NameRightCommand(const std::string& path, FileForm expected, Findings& findings);

}  // namespace zelmat
